// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

#include <QApplication>
#include <QKeySequence>
#include <QScreen>
#include <algorithm>
#include <sstream>

#include "display/clue_lists.h"
#include "display/grid_view.h"
#include "display/writing.h"

namespace kalvon::testing {
namespace {

constexpr int pitch = 28, view_cells = 15, row_height = 15, letter_boxes = 15;

std::string ListName(int list) { return "pic_tekst(" + std::to_string(list - 1) + ")"; }

bool InView(int cell, int first) { return cell >= first && cell < first + view_cells; }

void Mark(toolkit::PictureBox& picture, int x1, int y1, int x2, int y2) {
  picture.DrawMode(toolkit::DrawMode::exclusive_or);
  picture.FilledBox(x1, y1, x2, y2, 0x800000);
  picture.DrawMode(toolkit::DrawMode::copy);
}

}  // namespace

void PuzzleTest::SetUp() {
  ProgramTest::SetUp();
  QApplication::setCursorFlashTime(0);  // The screen must not change by itself.
  frm_opcije->opt_opcije(1).Value(true);
  frm_opcije->opt_opcije1(0).Value(true);
}

void PuzzleTest::Solve(const std::string& qvm) {
  WriteFile("p.qvm", qvm);
  Load("p.qvm");
  Keys("Box0");
}

void PuzzleTest::Choose(int script, int layout) {
  ClickButton("cmd_glavni(5)");
  frm_opcije->opt_opcije(script).Value(true);
  frm_opcije->opt_opcije1(layout).Value(true);
  ClickButton("cmd_opcije(0)");
}

void PuzzleTest::Keys(const std::string& script) {
  std::istringstream words(script);
  for (std::string word; words >> word;) {
    const QString name = QString::fromStdString(word);
    const QKeyCombination keys = name.size() > 1 ? QKeySequence(name)[0] : Qt::Key_unknown;
    if (word.starts_with("Box"))
      QTest::mouseClick(Widget("txt_rec(" + word.substr(3) + ")"), Qt::LeftButton);
    else if (keys.key() != Qt::Key_unknown)
      PressKey(keys.key(), keys.keyboardModifiers());
    else
      Type(word);
  }
}

void PuzzleTest::ClickClue(int list, int row, int button) {
  ClickPicture(ListName(list), 20, row * row_height - 8, button);
}

Word PuzzleTest::Selection() {
  return {glavni.smer, glavni.rec_x1, glavni.rec_y1, glavni.rec_x2, glavni.rec_y2};
}

std::vector<std::string> PuzzleTest::Letters() {
  std::vector<std::string> rows;
  for (int y = 1; y <= glavni.ukr_visina; ++y) {
    rows.emplace_back();
    for (int x = 1; x <= glavni.ukr_sirina; ++x)
      rows.back() += IsLetterCell(Cell(x, y)) && Cell(x, y)[1] != '$' ? Cell(x, y)[1] : ' ';
  }
  return rows;
}

std::map<int, std::pair<int, int>> PuzzleTest::Page(int list) {
  std::map<int, std::pair<int, int>> page;
  int row = 0;
  for (int n = 1; n <= (list == 1 ? glavni.lista_n1 : glavni.lista_n2); ++n) {
    const int first = row + 1;
    row += std::stoi(glavni.lista(n, 4, list));
    page[std::stoi(glavni.lista(n, 1, list))] = {first, row};
  }
  return page;
}

QImage PuzzleTest::Shown(const std::string& control) const {
  for (int i = 0; i < 2; ++i) QApplication::processEvents();  // A change of focus takes two.
  const QWidget* widget = Widget(control);
  const QPoint place = widget->mapTo(widget->window(), QPoint());
  return widget->screen()
      ->grabWindow(widget->window()->winId(), place.x(), place.y(), widget->width(),
                   widget->height())
      .toImage();
}

void PuzzleTest::ExpectScreenOfState(bool typed) const {
  if (glavni.pre_ucitavanja == 1) return;  // The title picture, and nothing to solve.
  ExpectEditor(typed);
  // A clue whose first cell holds no letter leaves the word as it was.
  const int n = glavni.sel_broj;
  if (n == 0 || IsLetterCell(Cell(glavni.pitanja(n, 2), glavni.pitanja(n, 3)))) {
    EXPECT_EQ(glavni.rec_broj(glavni.rec_x1, glavni.rec_y1), n);
  }
  EXPECT_EQ(frm_glavni->scr_hor.Value(), glavni.pogled_x - 1);
  EXPECT_EQ(frm_glavni->scr_ver.Value(), glavni.pogled_y - 1);
  const QImage screen = Shown("frm_glavni");
  PaintAnew();
  EXPECT_TRUE(Shown("frm_glavni") == screen);
}

void PuzzleTest::ExpectEditor(bool typed) {
  const std::string& text = glavni.rec_tekst;
  const int size = static_cast<int>(text.size());
  const int first = glavni.rec_prvo;
  EXPECT_TRUE(first >= 0 && (first == 0 || first + letter_boxes <= size));
  EXPECT_TRUE(glavni.rec_poz >= first && glavni.rec_poz < first + letter_boxes);
  EXPECT_TRUE(glavni.rec_poz == 0 || glavni.rec_poz < size);
  for (int i = 0; i < letter_boxes; ++i) {
    const int place = first + i;
    const bool in_word = place < size;
    const char letter = in_word ? text[static_cast<std::size_t>(place)] : '_';
    const std::string shown = letter == '_' ? "_" : ShownLetter(letter, ChosenWriting());
    EXPECT_EQ(frm_glavni->txt_rec(i).Text(), in_word ? shown : "") << i;
    EXPECT_EQ(frm_glavni->lbl_rec(i).Visible(), in_word) << i;
    if (!in_word) continue;
    const int number = size > letter_boxes ? place + 1 : (i + 1) % 10;
    EXPECT_EQ(frm_glavni->lbl_rec(i).Caption(), std::to_string(number));
  }
  if (typed) return;
  std::string word;
  for (int x = std::max<int>(glavni.rec_x1, 1); x <= glavni.rec_x2; ++x)
    for (int y = std::max<int>(glavni.rec_y1, 1); y <= glavni.rec_y2; ++y)
      word += UserLetter(Cell(x, y)).empty() ? '_' : Cell(x, y)[1];
  EXPECT_EQ(text, word);
}

void PuzzleTest::PaintAnew() {
  const CrosswordState state = glavni;
  glavni.sel_broj = 0;
  for (const int list : {0, 1}) skrol_pitanja(list);
  crtaj_ukrstenicu();
  glavni = state;
  for (int x = glavni.rec_x1; x <= glavni.rec_x2; ++x) {
    for (int y = glavni.rec_y1; y <= glavni.rec_y2; ++y) {
      const int left = (x - glavni.pogled_x) * pitch;
      const int top = (y - glavni.pogled_y) * pitch;
      if (InView(x, glavni.pogled_x) && InView(y, glavni.pogled_y))
        Mark(frm_glavni->pic_ukr, left, top, left + pitch - 2, top + pitch - 2);
    }
  }
  if (glavni.sel_broj == 0) return;
  const auto page = Page(glavni.sel_strana);
  if (const auto clue = page.find(glavni.sel_broj); clue != page.end()) {
    const auto [first, last] = clue->second;
    Mark(frm_glavni->pic_tekst(glavni.sel_strana - 1), 0, (first - 1) * row_height - 2, 160,
         last * row_height - 2);
  }
}

}  // namespace kalvon::testing
