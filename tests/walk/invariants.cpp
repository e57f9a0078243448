// SPDX-License-Identifier: MIT
#include "walk/invariants.h"
#include "crossword/cell.h"
#include "display/writing.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QWidget>

#include "display/clue_page.h"
#include "document/crossword_state.h"
#include "letters/letter_conversion.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace kalvon::testing {

namespace {

constexpr int pitch = 28;
constexpr int view_cells = 15;
constexpr int list_rows = 14;
constexpr unsigned white = 0xFFFFFF;
constexpr unsigned gray = 0xC0C0C0;
constexpr unsigned mark = 0x000080;  // What the exclusive-or pen turns over.

unsigned Pixel(const char* control, int x, int y) {
  auto* surface = dynamic_cast<toolkit::Surface*>(
      frm_glavni->InnerWidget()->findChild<QWidget*>(QString::fromUtf8(control)));
  return surface->Shown().pixel(x, y) & 0xFFFFFFU;
}

bool InWord(int x, int y) {
  const auto& s = glavni;
  return s.smer == 1 ? y == s.rec_y1 && x >= s.rec_x1 && x <= s.rec_x2
                     : x == s.rec_x1 && y >= s.rec_y1 && y <= s.rec_y2;
}

unsigned BackgroundOf(int x, int y) {
  if (x > glavni.ukr_sirina || y > glavni.ukr_visina) return gray;
  return glavni.ukr_polja(x, y, 1) == "$1$" ? gray : white;
}

void ExpectMark() {
  for (int i = 0; i < view_cells; ++i) {
    for (int j = 0; j < view_cells; ++j) {
      const int x = glavni.pogled_x + i;
      const int y = glavni.pogled_y + j;
      // Nothing but the mark ever reaches the lower right corner of a cell.
      const unsigned seen = Pixel("pic_ukr", i * pitch + 26, j * pitch + 26);
      EXPECT_EQ(seen, BackgroundOf(x, y) ^ (InWord(x, y) ? mark : 0U)) << "cell " << x << "," << y;
    }
  }
}

/// The marked rows of a list, from its left margin.
std::vector<int> MarkedRows(const char* list) {
  std::vector<int> rows;
  for (int row = 1; row <= list_rows; ++row)
    if (Pixel(list, 0, row * 15 - 8) != white) rows.push_back(row);
  return rows;
}

std::vector<int> RowsOfBar(int first, int last) {
  std::vector<int> rows;
  for (int row = first; row > 0 && row <= last && row <= list_rows; ++row) rows.push_back(row);
  return rows;
}

void ExpectOneBar() {
  const auto& s = glavni;
  EXPECT_EQ(MarkedRows("pic_tekst(0)"), RowsOfBar(s.oznaka1_od, s.oznaka1_do));
  EXPECT_EQ(MarkedRows("pic_tekst(1)"), RowsOfBar(s.oznaka2_od, s.oznaka2_do));
  EXPECT_FALSE(s.oznaka1_od > 0 && s.oznaka2_od > 0) << "two bars";
  const bool down = s.oznaka2_od > 0;
  const int first = down ? s.oznaka2_od : s.oznaka1_od;
  if (first == 0) return;
  const auto marked = ClueOfRow(down ? 2 : 1, first);
  ASSERT_TRUE(marked.has_value());
  EXPECT_EQ(marked->number, s.sel_broj) << "the bar of another clue";
  EXPECT_EQ(marked->last_row, down ? s.oznaka2_do : s.oznaka1_do);
}

void ExpectEditor(bool typing, bool options_open) {
  const int letters = static_cast<int>(glavni.rec_tekst.size());
  EXPECT_GE(glavni.rec_poz, 0);
  EXPECT_LE(glavni.rec_poz, std::max(0, std::min(letters, view_cells) - 1));
  for (int i = 0; i < view_cells; ++i) {
    const char letter = i < letters ? glavni.rec_tekst[static_cast<std::size_t>(i)] : '\0';
    EXPECT_EQ(frm_glavni->lbl_rec(i).Visible(), i < letters) << i;
    if (options_open && letter != '\0' && letter != '_') continue;
    const std::string shown = letter == '\0'  ? ""
                              : letter == '_' ? "_"
                                              : ShownLetter(letter, ChosenWriting());
    EXPECT_EQ(frm_glavni->txt_rec(i).Text(), shown) << i;
  }
  if (typing) return;
  std::string word;
  for (int x = glavni.rec_x1, y = glavni.rec_y1;
       x > 0 && y > 0 && x <= glavni.rec_x2 && y <= glavni.rec_y2; glavni.smer == 1 ? ++x : ++y) {
    const auto letter = UserLetter(glavni.ukr_polja(x, y, 1));
    word += letter.empty() ? "_" : letter;
  }
  EXPECT_EQ(glavni.rec_tekst, word);
}

}  // namespace

void Invariants::TakeCrossword() {
  cells_.clear();
  for (int y = 1; y <= glavni.ukr_visina; ++y)
    for (int x = 1; x <= glavni.ukr_sirina; ++x)
      cells_.push_back(WithoutUserLetter(glavni.ukr_polja(x, y, 1)));
}

void Invariants::Expect(bool typing, bool options_open) const {
  ExpectCells();
  ExpectMark();
  ExpectOneBar();
  ExpectEditor(typing, options_open);
}

void Invariants::ExpectCells() const {
  std::size_t place = 0;
  for (int y = 1; y <= glavni.ukr_visina; ++y) {
    for (int x = 1; x <= glavni.ukr_sirina; ++x) {
      const std::string& cell = glavni.ukr_polja(x, y, 1);
      EXPECT_EQ(WithoutUserLetter(cell), cells_.at(place++)) << "cell " << x << "," << y;
      if (!IsLetterCell(cell)) continue;
      EXPECT_LE(cell.find('$'), 2U) << cell;
      const auto letter = UserLetter(cell);
      EXPECT_TRUE(letter.empty() || azbuka(false).find(letter) != std::string::npos) << cell;
    }
  }
}

}  // namespace kalvon::testing
