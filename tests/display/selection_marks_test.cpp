// SPDX-License-Identifier: MIT
#include "display/display_test.h"
#include "display/font_change.h"
#include "display/grid_view.h"
#include "display/word_highlight.h"

namespace kalvon::testing {

namespace {

using SelectionMarks = DisplayTest;

/// Rows of letters with blocks strewn in, the same for the same seed.
CrosswordText RandomText(unsigned seed, int width, int height) {
  Random random(seed);
  CrosswordText text;
  for (int y = 0; y < height; ++y) {
    auto& row = text.rows.emplace_back();
    for (int x = 0; x < width; ++x) row += random.Below(5) == 0 ? '#' : random.OneOf("ABVGQMWX[^");
  }
  text.rows[0].replace(0, 2, "AB");
  text.clues["A1"] = "Pitanje koje ide u tri ili vi{e redova, jer je duga~ko";
  return text;
}

TEST_F(SelectionMarks, MarkingTwiceRestoresEveryPixel) {
  auto text = RandomText(3, 20, 20);
  text.letters = {"AXB", "WQ"};
  LoadText(text);
  const QImage with_mark = Shown("pic_ukr");
  crtaj_ukrstenicu();
  const QImage without = Shown("pic_ukr");
  oznaci_rec(0);
  EXPECT_EQ(Shown("pic_ukr"), with_mark);
  glavni.smer = 2;  // The direction opposite to the marked word's.
  ugasi_oznaku_reci();
  EXPECT_EQ(Shown("pic_ukr"), without);
  EXPECT_NE(with_mark, without);
}

TEST_F(SelectionMarks, MarkFillsTheInsideOfEachCell) {
  LoadText({.rows = {"ABCDEFGHIJKLMNOPRS", "T##############U##"}});
  for (const auto& [x, y, colour] : {std::tuple{26, 26, marked},
                                     {28, 26, marked},
                                     {27, 20, black},
                                     {26, 27, black},
                                     {29, 30, gray}})
    EXPECT_EQ(PixelOf("pic_ukr", x, y), colour) << x << "," << y;
  EXPECT_EQ(MarkedCells().size(), 15U);
  frm_glavni->scr_hor.Value(3);
  EXPECT_EQ(MarkedCells(), WordInView());
  EXPECT_TRUE(MarkedCells().contains({18, 1}));
}

TEST_F(SelectionMarks, GridClickBringsTheClueToTheHead) {
  LoadText(RandomText(5, 15, 40));
  ClickPicture("pic_tekst(0)", 20, 100);
  frm_glavni->scr_ver.Value(20);
  for (const auto& [x, y] : {std::pair{3, 22}, {3, 22}, {8, 30}, {8, 30}, {8, 30}}) {
    ClickCell(x, y);
    ExpectMarksOfState();
    if (WordInView().empty()) continue;
    EXPECT_EQ(NumbersOnPage(glavni.smer).front(), glavni.sel_broj);
  }
  const auto page = NumbersOnPage(1);
  const int value = frm_glavni->scr_tekst(0).Value();
  crtaj_ukrstenicu();
  oznaci_rec(0);
  EXPECT_EQ(NumbersOnPage(1), page);
  EXPECT_EQ(frm_glavni->scr_tekst(0).Value(), value);
}

TEST_F(SelectionMarks, ClickOnAClueKeepsItsListAndMarksAllItsRows) {
  LoadText(RandomText(5, 15, 15));
  ClickPicture("pic_tekst(1)", 20, 47);
  EXPECT_EQ(glavni.smer, 2);
  EXPECT_EQ(glavni.sel_broj, NumbersOnPage(2)[3]);
  ExpectMarksOfState();
  const auto page = NumbersOnPage(1);
  ClickPicture("pic_tekst(0)", 20, 20);  // The second row of the long first clue.
  EXPECT_EQ(glavni.sel_broj, 1);
  EXPECT_EQ(NumbersOnPage(1), page);
  EXPECT_GT(Bars(1).front().second, 40);
  ExpectMarksOfState();
}

TEST_F(SelectionMarks, RowOfAListIsFifteenPixelsHigh) {
  LoadText(RandomText(9, 15, 40));
  for (const auto& [y, row] :
       {std::pair{0, 1}, {14, 1}, {15, 2}, {194, 13}, {195, 14}, {209, 14}}) {
    ClickPicture("pic_tekst(1)", 20, y);
    EXPECT_EQ(glavni.sel_broj, ClueOfRow(2, row)->number) << y;
  }
}

TEST_F(SelectionMarks, ClickBelowTheLastClueChangesNothing) {
  LoadText({.rows = {"ABC", "D#E", "FGH"}});
  ClickPicture("pic_tekst(1)", 20, 3);
  frm_glavni->txt_rec(2).SetFocus();
  const QImage grid = Shown("pic_ukr");
  const QImage list = Shown("pic_tekst(1)");
  ClickPicture("pic_tekst(0)", 20, 150);
  EXPECT_EQ(glavni.media_pitanje, "0");
  EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  EXPECT_EQ(Shown("pic_ukr"), grid);
  EXPECT_EQ(Shown("pic_tekst(1)"), list);
  ExpectMarksOfState();
}

TEST_F(SelectionMarks, ViewMovesOnlyAsFarAsTheClueNeeds) {
  struct Case {
    int view_x, view_y;  ///< The view before the click.
    int x, y;            ///< First cell of the clue's word.
    int shown_x, shown_y;
  };
  // Across words of two letters at the four corners and in the middle of a 40 by 30 grid.
  CrosswordText text{.rows = std::vector<std::string>(30, std::string(40, '#'))};
  for (const auto& [x, y] : {std::pair{1, 1}, {39, 1}, {20, 15}, {1, 30}, {39, 30}})
    text.rows[static_cast<std::size_t>(y - 1)].replace(static_cast<std::size_t>(x - 1), 2, "AB");
  LoadText(text);
  for (const Case& c : {Case{1, 1, 39, 1, 26, 1},
                        {26, 16, 1, 1, 1, 1},
                        {10, 16, 20, 15, 10, 15},
                        {1, 10, 20, 15, 20, 10},
                        {6, 1, 20, 15, 6, 1},
                        {5, 5, 39, 30, 26, 16},
                        {26, 5, 1, 30, 1, 16}}) {
    frm_glavni->scr_hor.Value(c.view_x - 1);
    frm_glavni->scr_ver.Value(c.view_y - 1);
    for (const PageClue& clue : CluesOnPage(1)) {
      const auto& pitanja = glavni.pitanja;
      if (pitanja(clue.number, 2) == c.x && pitanja(clue.number, 3) == c.y)
        ClickPicture("pic_tekst(0)", 20, clue.first_row * 15 - 8);
    }
    EXPECT_EQ(glavni.pogled_x, c.shown_x) << c.x << "," << c.y;
    EXPECT_EQ(glavni.pogled_y, c.shown_y) << c.x << "," << c.y;
    EXPECT_EQ(frm_glavni->scr_hor.Value(), c.shown_x - 1);
    EXPECT_EQ(glavni.rec_x1, c.x);
    EXPECT_TRUE(MarkedCells().contains({c.x, c.y}));
    ExpectMarksOfState();
  }
}

TEST_F(SelectionMarks, ClueThatStartsOnABlockLeavesTheWord) {
  LoadText({.rows = {"ABC", "D#E", "FGH"}});
  glavni.ukr_polja.Mutable(1, 3, 1) = "$1$";  // The start of clue 3, across.
  crtaj_ukrstenicu();
  oznaci_rec(0);
  const auto word = MarkedCells();
  ClickPicture("pic_tekst(0)", 20, 20);
  EXPECT_EQ(MarkedCells(), word);
  EXPECT_EQ(Bars(1), (std::vector<Rows>{{13, 28}}));
  ClickCell(3, 2);
  ExpectMarksOfState();
}

TEST_F(SelectionMarks, SelectionWithoutAWordStartMarksNoClue) {
  LoadText({.rows = {"ABC", "D#E", "FGH"}});
  for (const int x : {1, 2, 3}) glavni.ukr_polja.Mutable(x, 2, 2) = "";
  ClickCell(3, 2);  // No across word starts in this row.
  ASSERT_EQ(glavni.rec_x2, -1);
  EXPECT_TRUE(MarkedCells().empty());
  EXPECT_TRUE(Bars(1).empty() && Bars(2).empty());
  EXPECT_EQ(glavni.sel_broj, 0);
  ClickCell(3, 2);
  ClickCell(1, 1);
  ExpectMarksOfState();
}

TEST_F(SelectionMarks, HoldInEverySequence) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    LoadText(RandomText(seed, seed == 2 ? 12 : 33, 28));
    Random random(seed);
    for (int i = 0; i < 400 && !HasFailure(); ++i) {
      const int input = random.Below(10);
      if (input < 4) {
        ClickPicture("pic_ukr", random.Below(420), random.Below(420));
      } else if (input < 6) {
        ClickPicture("pic_tekst(" + std::to_string(random.Below(2)) + ")", 20, random.Below(210),
                     1 + random.Below(2));
      } else if (input == 6) {
        (random.Below(2) == 0 ? frm_glavni->scr_hor : frm_glavni->scr_ver).Value(random.Below(20));
      } else if (input == 7) {
        frm_glavni->scr_tekst(random.Below(2)).Value(1 + random.Below(60));
      } else if (input == 8) {
        ClickButton(random.Below(2) == 0 ? "cmd_glavni(3)" : "cmd_glavni(4)");
      } else {
        frm_opcije->opt_opcije(random.Below(2)).Value(true);
        frm_opcije->opt_opcije1(random.Below(2)).Value(true);
        primeni_font();
      }
      SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(i) + ", input " +
                   std::to_string(input));
      ExpectMarksOfState();
    }
  }
}

}  // namespace

}  // namespace kalvon::testing
