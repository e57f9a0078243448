// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScrollBar>
#include <iterator>
#include <random>
#include <sstream>

#include "display/selected_word.h"
#include "document/settings.h"
#include "letters/letter_conversion.h"
#include "solving/next_clue.h"
#include "solving/undo.h"
#include "solving/word_editor.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

enum Place { main_form, help, dialog, options };
/// What an event does to letters that were typed but not entered.
enum Typing { keeps, begins, ends };

/// One of some controls to click or of some keys to press.
struct Action {
  Place place;
  int weight;
  Typing typing;
  const char* choices;
};

const Action actions[] = {
    {main_form, 7, keeps, "pic_ukr"},
    {main_form, 4, keeps, "pic_tekst(0) pic_tekst(1) pic_media(4)"},
    {main_form, 4, keeps, "scr_hor scr_ver scr_tekst(0) scr_tekst(1)"},
    {main_form, 8, begins, "a q X { ~ [ š Đ љ Ж а @ . % 1 w t ' ( e"},
    {main_form, 3, begins, "Left Right Home End Space Delete Backspace Up Down"},
    {main_form, 3, ends, "Return"},
    {main_form, 4, keeps, "Ctrl+Left Ctrl+Right Ctrl+Up Ctrl+Down Ctrl+Return"},
    {main_form, 4, keeps, "Alt+Down Alt+Up Alt+Left PgDown PgUp Alt+Return Esc"},
    {main_form, 3, keeps, "cmd_glavni(0) cmd_glavni(1)"},
    {main_form, 2, keeps, "cmd_glavni(5) cmd_glavni(6)"},
    {main_form, 2, ends, "cmd_glavni(3) cmd_glavni(4)"},
    {main_form, 1, ends, "cmd_glavni(2) Return"},
    {main_form, 4, begins, "undo redo letter next"},
    {main_form, 1, begins, "undo-all"},
    {help, 1, keeps, "cmd_glavni(6) pic_tekst(0) txt_rec1"},
    {dialog, 20, keeps, "File1"},
    {dialog, 5, keeps, "cmd_ucit(0)"},
    {dialog, 1, keeps, "Dir1 cmd_ucit(1)"},
    {dialog, 1, ends, "crash"},
    {options, 3, keeps, "opt_opcije(0) opt_opcije(1) opt_opcije1(0) opt_opcije1(1) cmd_opcije(4)"},
    {options, 3, ends, "cmd_opcije(2) cmd_opcije(3) cmd_opcije(5)"},
    {options, 2, ends, "cmd_opcije(0)"},
};

/// A user who does anything, in an order that a seed decides; every third in the English program,
/// every second with the choices of the menu.
class RandomWalk : public PuzzleTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  RandomWalk() : PuzzleTest(GetParam() % 3 == 0 ? 1 : 0), random_(GetParam()) {}

  void SetUp() override {
    for (const auto& sample : std::filesystem::directory_iterator(SAMPLES_FOLDER))
      if (sample.file_size() < 100'000) CopySample(sample.path().filename().string());
    WriteFile("losa.qvm", "\r\nNaziv: Ima samo dva reda\r\n");
    PuzzleTest::SetUp();
    glavni.upis_u_hodu = glavni.bira_jedinu = GetParam() % 2 == 0;
    snimi_izbor();
    ClickButton("cmd_glavni(0)");
  }

  void Step() {
    const Place place = frm_ucit_snimi->Visible()    ? dialog
                        : frm_opcije->Visible()      ? options
                        : glavni.pomoc_otvorena == 1 ? help
                                                     : main_form;
    std::vector<const Action*> deck;
    for (const Action& action : actions)
      if (action.place == place) deck.insert(deck.end(), std::size_t(action.weight), &action);
    const Action& action = *OneOf(deck);
    std::istringstream choices(action.choices);
    const std::string choice =
        OneOf<std::string>({std::istream_iterator<std::string>(choices), {}});
    SCOPED_TRACE(choice);
    const std::string before = glavni.rec_tekst;
    Do(choice);
    // What was typed lasts until something fills the editor anew.
    if (action.typing != keeps || glavni.rec_tekst != before)
      typed_ = action.typing == begins && !glavni.upis_u_hodu;
    ExpectCellsKept();
    EXPECT_EQ(glavni.media_temp.empty(), !frm_glavni->pic_media(4).Visible());
    if (!frm_opcije->Visible()) ExpectScreenOfState(typed_);
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  template <typename Kind>
  const Kind& OneOf(const std::vector<Kind>& kinds) {
    return kinds[random_() % kinds.size()];
  }

  void Do(const std::string& choice) {
    const auto grid = Grid();
    const std::string name = frm_ucit_snimi->txt_ucit.Text();
    if (choice == "File1") {
      frm_ucit_snimi->File1.ListIndex(Below(frm_ucit_snimi->File1.ListCount()));
    } else if (choice == "Dir1") {
      frm_ucit_snimi->Dir1.Change.Raise();
    } else if (choice == "undo") {
      const bool step = glavni.otkucano.empty() && CanUndo();
      const WordPlace word = step ? glavni.dnevnik->Steps().LastMade()->word : WordPlace{};
      ponisti();
      EXPECT_TRUE(word.direction == 0 || SelectedWord() == word);
    } else if (choice == "redo") {
      ponovi();
    } else if (choice == "letter") {
      resi_slovo();
    } else if (choice == "next") {
      sledeca_prazna();
    } else if (choice == "undo-all") {
      ExpectWayBackAndForth();
    } else if (auto* bar = Widget<QScrollBar>(choice)) {
      bar->triggerAction(QAbstractSlider::SliderAction(1 + Below(6)));
    } else if (QWidget* control = Widget(choice); control != nullptr && control->isVisible()) {
      const bool picture = choice.starts_with("pic");
      QTest::mouseClick(control, picture && Below(2) == 0 ? Qt::RightButton : Qt::LeftButton, {},
                        {Below(control->width()), Below(control->height())});
    } else if (control == nullptr && choice != "crash") {
      QApplication::setActiveWindow(Widget("frm_glavni"));
      if (!FocusedControl().starts_with("txt_rec(")) Keys("Box" + std::to_string(Below(15)));
      if (FocusedControl().starts_with("txt_rec(")) Keys(choice);
    }
    if (choice == "cmd_glavni(1)") files_[loaded_] = grid;
    if (choice == "cmd_ucit(0)") ExpectLoaded(name, grid);
    if (choice == "crash") killed_[loaded_] = grid;
    if (choice == "cmd_glavni(2)" || choice == "crash") {
      Restart();
      loaded_.clear();
      start_.clear();
      ClickButton("cmd_glavni(0)");
    }
  }

  /// What was made since the load goes back to what the files held, and forth to what it was.
  void ExpectWayBackAndForth() {
    while (CanRedo()) ponovi();
    const auto end = Grid();
    while (CanUndo()) ponisti();
    EXPECT_TRUE(!first_time_ || Grid() == start_);
    EXPECT_EQ(glavni.izmenjeno, Grid() != files_[loaded_]);
    while (CanRedo()) ponovi();
    EXPECT_EQ(Grid(), end);
  }

  static std::vector<std::string> Grid() {
    std::vector<std::string> cells;
    for (int y = 1; y <= glavni.ukr_visina; ++y)
      for (int x = 1; x <= glavni.ukr_sirina; ++x)
        cells.insert(cells.end(), {Cell(x, y), glavni.ukr_polja(x, y, 2)});
    return cells;
  }

  void ExpectLoaded(const std::string& name, const std::vector<std::string>& before) {
    const bool loads = !name.empty() && name != "losa.qvm";
    if (loads) loaded_ = name.substr(0, 5);  // Installments differ behind it.
    if (!loads) {
      EXPECT_EQ(Grid(), before);
      return;
    }
    start_ = Grid();
    const auto [file, first_time] = files_.try_emplace(loaded_, start_);
    first_time_ = first_time;
    const auto killed = killed_.extract(loaded_);
    EXPECT_EQ(start_, killed ? killed.mapped() : file->second);
  }

  /// Nothing but letters of the alphabet and of the solution has come into the cells of the file.
  void ExpectCellsKept() {
    const auto cells = Grid();
    const auto& file = files_[loaded_];
    ASSERT_EQ(cells.size(), file.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (cells[i] == file[i]) continue;
      EXPECT_EQ(WithoutUserLetter(cells[i]), WithoutUserLetter(file[i]));
      EXPECT_NE((std::string(azbuka(glavni.jezik == 1)) + cells[i][0]).find(UserLetter(cells[i])),
                std::string::npos);
    }
  }

  std::mt19937 random_;
  bool typed_ = false;
  std::string loaded_;
  bool first_time_ = false;
  std::map<std::string, std::vector<std::string>> killed_;  ///< What a crash left unsaved.
  std::vector<std::string> start_;  ///< What the crossword held when it was loaded.
  std::map<std::string, std::vector<std::string>> files_;  ///< What each crossword's files hold.
};

TEST_P(RandomWalk, KeepsEverythingInForm) {
  for (int event = 0; event < 400 && !HasFailure(); ++event) {
    SCOPED_TRACE("event " + std::to_string(event));
    Step();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, ::testing::Range(1U, 7U),
                         ::testing::PrintToStringParamName());

}  // namespace kalvon::testing
