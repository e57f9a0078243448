// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

namespace kalvon::testing {

class ClueLists : public PuzzleTest {
 protected:
  /// So many words down, whose clues lie below each other in list 2.
  static CrosswordText Comb(std::size_t words) {
    return {.rows = std::vector(4, std::string(words, 'A'))};
  }

  /// Expects list 2, which bears no bar, to show these rows, and icons by their rows.
  void ExpectRows(const std::vector<std::string>& rows, const std::vector<int>& icons = {}) {
    const QImage shown = Shown("pic_tekst(1)");
    auto& list = frm_glavni->pic_tekst(1);
    list.Picture({});
    for (int y = 0; const std::string& row : rows) {
      list.CurrentX(15);
      list.CurrentY(15 * y++);
      list.Print(row);
    }
    for (int y = -15; const int icon : icons)
      if (y += 15; icon >= 0) list.PaintPicture(frm_glavni->pic_media(icon).Picture(), 2, y);
    EXPECT_TRUE(Shown("pic_tekst(1)") == shown) << rows[0];
  }
};

TEST_F(ClueLists, ClueIsReadFromItsField) {
  for (const auto& [line, list, medium, clue] :
       {std::tuple{"011$$$$ACROSS$DOLE$", 1, "", "1: ACROSS"},
        {"011$$$$ACROSS$DOLE$", 2, "", "1: DOLE"},
        {"011$$$$/kit.bmp/A/B$$", 1, "kit.bmp", "1: A/B"},
        {"011$$$$A/B$$", 1, "", "1: A/B"},
        {"011$$$$NOT CLOSED", 1, "", "1: NOT CLOSED"},
        {"011$$$$$/ a.avi /OPEN", 2, "a.avi", "1: OPEN"},
        {"011$$$$/NO END$$", 1, "", "1: /NO END"},
        {"011$$$", 2, "", "1: "}}) {
    std::string qvm = Qvm(Comb(3));
    Solve(qvm.replace(qvm.find("011$"), 13, line));
    EXPECT_EQ(glavni.lista(1, 1, list), clue) << line;
    EXPECT_EQ(glavni.lista(1, 5, list), medium) << line;
  }
}

TEST_F(ClueLists, RowsBreakAtBlanks) {
  auto text = Comb(3);
  text.clues = {{"D1", "xepni ` q  i }  MMMMMMMMMM MMMMMMMMMM a"}, {"D2", std::string(40, 'm')}};
  Solve(text);
  std::vector<std::string> rows = {"1: D`EPNI @ Lj  I ]", "MMMMMMMMMM", "MMMMMMMMMM A", "2:"};
  rows.resize(14, "M");  // A word that is wider than the list breaks into single letters.
  ExpectRows(rows);
}

TEST_F(ClueLists, IconStandsBesideTheFirstRow) {
  auto text = Comb(13);
  std::vector<std::string> rows;
  for (const char* medium :
       {"/a.bmp/", "/a.BMP/", "/a.txt/", "/a.TXT/", "/a.wav/", "/a.WAV/", "/a.mid/", "/a.MID/",
        "/a.avi/", "/a.AVI/", "/a.Bmp/", "/a.gif/", "/a.bmp/"}) {
    const std::string number = std::to_string(rows.size() + 1);
    text.clues['D' + number].append(medium).append("PPPPPPPPPP");
    rows.push_back(number + ": PPPPPPPPPP");
  }
  text.clues["D13"] += " MMMMMMMMMM";
  rows.emplace_back("MMMMMMMMMM");
  Solve(text);
  ExpectRows(rows, {0, 0, 1, 1, 2, 2, 2, 2, 3, 3, -1, -1, 0});
}

TEST_F(ClueLists, PageTakesFifteenRowsAndFinishesTheLastClue) {
  for (const auto& [clue, clues_on_page, last_row] :
       {std::tuple{"D16", 15U, 15}, {"D15", 15U, 17}, {"D13", 13U, 15}, {"D1", 13U, 15}}) {
    auto text = Comb(20);
    text.clues[clue] = "MMMMMMMMMM MMMMMMMMMM MMMMMMMMMM";
    Solve(text);
    EXPECT_EQ(Page(2).size(), clues_on_page) << clue;
    EXPECT_EQ(Page(2).rbegin()->second.second, last_row) << clue;
  }
}

TEST_F(ClueLists, ScrollingBringsTheClueOfTheBarToTheHead) {
  for (const int mark : {0, 1}) {
    auto text = Comb(20);
    text.marks[0] = mark;  // Side by side: numbered by columns, the first of which starts four.
    Solve(text);
    for (const int value : {2, 9, 8, 20, 3, 1}) {
      frm_glavni->scr_tekst(1).Value(value);
      const auto page = Page(2);
      EXPECT_EQ(page.begin()->first, value + (value > 1 ? 3 * mark : 0));
      EXPECT_EQ(page.rbegin()->first, std::min(value + 14, 20) + 3 * mark);
      EXPECT_EQ(static_cast<int>(page.size()), std::min(15, 21 - value));
      ExpectScreenOfState();
    }
    EXPECT_EQ(Page(1).begin()->first, 1);
  }
}

TEST_F(ClueLists, ListWithoutAClueBehindTheFirstShowsItsLast) {
  // The view opens on the second installment, which holds no further word down.
  CrosswordText first{.rows = std::vector<std::string>(15, "###"), .marks = {0, 1}};
  CrosswordText second{.rows = first.rows, .marks = {0, 1}};
  first.rows[0] = second.rows[14] = "ABC";
  first.rows[1] = "D#E";
  WriteFile("proba001.qvm", Qvm(first));
  WriteFile("proba002.qvm", Qvm(second));
  Load("proba002.qvm");
  EXPECT_EQ(glavni.pogled_y, 16);
  EXPECT_EQ(Page(1).begin()->first, 3);
  EXPECT_EQ(Page(2).begin()->first, 2);
  ExpectScreenOfState();
  frm_glavni->scr_tekst(1).Value(1);
  EXPECT_EQ(Page(2).size(), 2U);
}

TEST_F(ClueLists, SideWithoutCluesStaysEmpty) {
  Solve({.rows = {"ABC", "D#E"}});
  ClickClue(2, 2);                  // Its bar goes with its crossword.
  Solve({.rows = {"A#B", "C#D"}});  // No word across, and so no word is selected.
  EXPECT_TRUE(Page(1).empty());
  EXPECT_EQ(glavni.rec_tekst, "");
  ExpectScreenOfState();
  Solve({.rows = {"ABC", "###", "DEF"}});
  frm_glavni->txt_rec(2).SetFocus();
  ClickClue(2, 3);
  EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  EXPECT_TRUE(Page(2).empty());
  ExpectScreenOfState();
}

}  // namespace kalvon::testing
