// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

namespace kalvon::testing {

using SelectionMarks = PuzzleTest;

TEST_F(SelectionMarks, GridClickBringsTheClueToTheHead) {
  Solve({.rows = std::vector(40, std::string(15, 'A'))});
  frm_glavni->scr_ver.Value(20);
  for (const auto& [x, y] : {std::pair{3, 22}, {3, 22}, {8, 30}, {8, 30}}) {
    ClickCell(x, y);
    EXPECT_EQ(Page(glavni.smer).begin()->first, glavni.sel_broj);
    ExpectScreenOfState();
  }
}

TEST_F(SelectionMarks, RowOfAListIsFifteenPixelsHighAndThatOfALongClueToo) {
  const char* three_rows = "MMMMMMMMMM MMMMMMMMMM MMMMMMMMMM";
  Solve({.rows = std::vector(4, std::string(12, 'A')), .clues = {{"D1", three_rows}}});
  for (const auto& [y, clue] :
       {std::pair{0, 1}, {44, 1}, {45, 2}, {194, 11}, {195, 12}, {209, 12}}) {
    ClickPicture("pic_tekst(1)", 20, y);
    EXPECT_EQ(glavni.sel_broj, clue) << y;
    ExpectScreenOfState();
  }
  frm_glavni->txt_rec(2).SetFocus();
  ClickClue(1, 12);  // Below the last clue.
  EXPECT_EQ(glavni.media_pitanje, "0");
  EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  EXPECT_EQ(Selection(), (Word{2, 12, 1, 12, 4}));
  ExpectScreenOfState();
}

TEST_F(SelectionMarks, ViewMovesOnlyAsFarAsTheClueNeeds) {
  // Across words of two letters at the four corners and in the middle of a 40 by 30 grid.
  CrosswordText text{.rows = std::vector(30, std::string(40, '#'))};
  for (const auto& [x, y] : {std::pair{0U, 0U}, {38, 0}, {19, 14}, {0, 29}, {38, 29}})
    text.rows[y].replace(x, 2, "AB");
  Solve(text);
  // The view before the click, the clue's row in its list, the view after it.
  for (const auto& [view_x, view_y, row, shown_x, shown_y] : {std::array{1, 1, 2, 26, 1},
                                                              {26, 16, 1, 1, 1},
                                                              {10, 16, 3, 10, 15},
                                                              {1, 10, 3, 20, 10},
                                                              {6, 1, 3, 6, 1},
                                                              {5, 5, 5, 26, 16},
                                                              {26, 5, 4, 1, 16}}) {
    frm_glavni->scr_hor.Value(view_x - 1);
    frm_glavni->scr_ver.Value(view_y - 1);
    ClickClue(1, row);
    EXPECT_EQ(glavni.pogled_x, shown_x) << row;
    EXPECT_EQ(glavni.pogled_y, shown_y) << row;
    EXPECT_EQ(glavni.sel_broj, row);
    ExpectScreenOfState();
  }
}

}  // namespace kalvon::testing
