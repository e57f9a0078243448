// SPDX-License-Identifier: MIT
#include "display/clue_lists.h"
#include "crossword/fields.h"

#include "crossword/clue.h"
#include "display/display_test.h"
#include "display/fonts.h"

namespace kalvon::testing {

namespace {

const std::string& Listed(int n, int column, int strana) { return glavni.lista(n, column, strana); }

TEST(ClueText, IsReadFromItsField) {
  struct Case {
    const char* line;
    int direction;
    const char *media, *text;
  };
  for (const Case& c : {Case{"011$$$$Across$Down$", 1, "", "Across"},
                        {"011$$$$Across$Down$", 2, "", "Down"},
                        {"010$$$$/kit.bmp/A/B$$", 1, "kit.bmp", "A/B"},
                        {"010$$$$and/or$$", 1, "", "and/or"},
                        {"010$$$$Not closed", 1, "", "Not closed"},
                        {"001$$$$$/a.avi/Not closed", 2, "a.avi", "Not closed"},
                        {"010$$$$/no end$$", 1, "", "/no end"},
                        {"011$$$", 1, "", ""},
                        {"", 2, "", ""}}) {
    const Clue clue = ReadClue(c.line, c.direction);
    EXPECT_EQ(clue.media, c.media) << c.line;
    EXPECT_EQ(clue.text, c.text) << c.line;
  }
}

class ClueLists : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    frm_opcije->opt_opcije(1).Value(true);
    frm_opcije->opt_opcije1(0).Value(true);
  }

  /// Rows of n words across, with a down word between each two.
  static CrosswordText Ladder(int rungs) {
    CrosswordText text;
    for (int i = 0; i < rungs; ++i) text.rows.insert(text.rows.end(), {"ABC", "D#E"});
    text.rows.emplace_back("ABC");
    return text;
  }

  /// Rows that a clue takes when its text is fitted character by character.
  static int RowsOf(std::string text) {
    SetFont(frm_glavni->lbl_sirina, glavni.font_ime, 9, false);
    int rows = 0;
    for (; !text.empty(); ++rows) {
      std::string row = text;
      std::string rest;
      while (MeasuredWidth(row) > 141) {
        while (row.size() > 1) {
          rest.insert(0, 1, row.back());
          row.pop_back();
          if (rest.front() == ' ') break;
        }
      }
      text = Trimmed(rest);
    }
    return rows;
  }
};

TEST_F(ClueLists, PageHoldsWhatTheListOfCluesSays) {
  auto text = Ladder(2);
  text.clues = {{"A1", "/kit.bmp/Najve}i sisar"}, {"D1", "xepni ` q"}};
  LoadText(text);
  EXPECT_EQ(Listed(1, 1, 1), "1: NAJVE]I SISAR");
  EXPECT_EQ(Listed(1, 5, 1), "kit.bmp");
  EXPECT_EQ(Listed(1, 1, 2), "1: D`EPNI @ Lj");
  EXPECT_EQ(Listed(2, 2, 2) + "," + Listed(2, 3, 2), "3,1");
  EXPECT_EQ(NumbersOnPage(1), (std::vector<int>{1, 3, 4}));
  EXPECT_EQ(NumbersOnPage(2), (std::vector<int>{1, 2}));
}

TEST_F(ClueLists, RowsBreakAtTheLastBlankThatFits) {
  Random random(7);
  for (int round = 0; round < 40; ++round) {
    std::string clue;
    const int length = 5 + random.Below(90);
    for (int i = 0; i < length; ++i)
      clue += random.Below(round % 3 == 0 ? 40 : 6) == 0 ? ' ' : random.OneOf("IMAWLOT");
    auto text = Ladder(1);
    text.clues["A1"] = clue;
    LoadText(text);
    EXPECT_EQ(DecimalValue(Listed(1, 4, 1)), RowsOf(Listed(1, 1, 1))) << clue;
  }
}

TEST_F(ClueLists, IconStandsBesideTheFirstRowOnly) {
  const std::pair<const char*, bool> names[] = {{"a.bmp", true},  {"a.BMP", true}, {"a.wav", true},
                                                {"a.MID", true},  {"a.txt", true}, {"a.avi", true},
                                                {"a.Bmp", false}, {"a.gif", false}};
  for (const auto& [name, has_icon] : names) {
    auto text = Ladder(1);
    text.clues["D1"] = std::string("/") + name + "/" + std::string(60, 'M') + " kraj";
    LoadText(text);
    const QImage list = Shown("pic_tekst(1)");
    EXPECT_EQ(Ink(list.copy(2, 0, 12, 12)) > 0, has_icon) << name;
    EXPECT_EQ(Ink(list.copy(0, 15, 15, 180)), 0) << name;
    EXPECT_EQ(Listed(1, 5, 2), name);
  }
}

TEST_F(ClueLists, WordWiderThanTheListBreaksIntoSingleCharacters) {
  auto text = Ladder(1);
  text.clues["D1"] = std::string(40, 'M');
  LoadText(text);
  int fitting = 0;
  SetFont(frm_glavni->lbl_sirina, glavni.font_ime, 9, false);
  while (MeasuredWidth(std::string(static_cast<std::size_t>(fitting) + 1, 'M')) <= 141) ++fitting;
  EXPECT_EQ(DecimalValue(Listed(1, 4, 2)), 1 + (40 - fitting) + 1);
}

TEST_F(ClueLists, PageTakesFifteenCluesOfOneRowAndFinishesTheLast) {
  auto text = Ladder(20);
  LoadText(text);
  EXPECT_EQ(glavni.lista_n1, 15);
  text.clues["A1"] = std::string(40, 'M');
  LoadText(text);
  EXPECT_EQ(glavni.lista_n1, 1);
  EXPECT_GT(DecimalValue(Listed(1, 4, 1)), 15);
}

TEST_F(ClueLists, ScrollingBringsTheClueOfTheBarToTheHead) {
  for (const int mark : {0, 1}) {
    auto text = Ladder(20);
    text.marks[0] = mark;  // Side by side: numbered by columns.
    LoadText(text);
    std::vector<int> across;
    for (int n = 1; n <= glavni.broj_pitanja; ++n)
      if (glavni.pitanja(n, 1) != 2) across.push_back(n);
    const auto down_page = NumbersOnPage(2);
    auto& bar = frm_glavni->scr_tekst(0);
    for (const int value : {2, 9, 8, 21, 3, 1}) {
      bar.Value(value);
      const auto first = across.begin() + value - 1;
      const auto length = std::min<std::ptrdiff_t>(15, across.end() - first);
      EXPECT_EQ(NumbersOnPage(1), std::vector<int>(first, first + length)) << value;
      ExpectMarksOfState();
    }
    EXPECT_EQ(NumbersOnPage(2), down_page);
  }
}

TEST_F(ClueLists, ListWithoutAClueBehindTheFirstShowsItsLast) {
  // The view opens on the second installment, which holds no further down word.
  CrosswordText first{.rows = {"ABC", "D#E"}, .marks = {0, 1, 0, 0}};
  CrosswordText second{.rows = {"###", "ABC"}, .marks = {0, 1, 0, 0}, .number = 2};
  for (int i = 0; i < 13; ++i) {
    first.rows.insert(first.rows.begin() + 2, "###");
    second.rows.insert(second.rows.begin(), "###");
  }
  WriteFile("proba001.qvm", Qvm(first));
  WriteFile("proba002.qvm", Qvm(second));
  Load("proba002.qvm");
  EXPECT_EQ(glavni.pogled_y, 16);
  EXPECT_EQ(NumbersOnPage(1), std::vector<int>{3});
  EXPECT_EQ(frm_glavni->scr_tekst(1).Value(), 2);
  EXPECT_EQ(NumbersOnPage(2), std::vector<int>{2});
  frm_glavni->scr_tekst(1).Value(1);
  EXPECT_EQ(NumbersOnPage(2), (std::vector<int>{1, 2}));
  ExpectMarksOfState();
}

TEST_F(ClueLists, SideWithoutCluesStaysEmpty) {
  LoadText({.rows = {"ABC", "###", "DEF"}});
  ExpectMarksOfState();
  ClickPicture("pic_tekst(1)", 20, 50);
  skrol_pitanja(1);
  EXPECT_EQ(glavni.lista_n2, 0);
  EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  ExpectMarksOfState();
  LoadText({.rows = {"A#B", "C#D"}});  // No across word: nothing is selected, and nothing fails.
  EXPECT_EQ(glavni.lista_n1, 0);
  EXPECT_TRUE(MarkedCells().empty());
  EXPECT_TRUE(Bars(1).empty() && Bars(2).empty());
  ClickCell(3, 1);
  ClickCell(3, 1);
  ExpectMarksOfState();
}

}  // namespace

}  // namespace kalvon::testing
