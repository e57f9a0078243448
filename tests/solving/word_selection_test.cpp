// SPDX-License-Identifier: MIT
#include <sstream>

#include "solving/next_clue.h"
#include "solving/puzzle_commands.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

class WordSelection : public PuzzleTest {
 protected:
  /// Clicks cells, as "1,4" by column and row, and clues, as "A2" by the row of the list across or
  /// "D2" by that of the list down.
  void Click(const std::string& script) {
    std::istringstream targets(script);
    for (std::string target; targets >> target;) {
      const int last = target.back() - '0';
      if (target[0] == 'A' || target[0] == 'D')
        ClickClue(target[0] == 'A' ? 1 : 2, last);
      else
        ClickCell(std::stoi(target), last);
    }
  }

  /// A crossword whose first blocked cell starts a word across and one down.
  static std::string WithStartOnBlockedCell(const std::vector<std::string>& rows) {
    const std::string blocked = "\r\n$1$\r\n";
    std::string qvm = Qvm(rows);
    return qvm.insert(qvm.find(blocked) + blocked.size(), "011$$$$Prvo$Drugo$");
  }
};

struct Clicks {
  const char* name;
  const char* targets;
  Word word;
};

const Clicks clicks[] = {
    {"none: the first clue's word", "", {1, 1, 1, 3, 1}},
    {"a cell of the word turns to the crossing one", "1,1", {2, 1, 1, 1, 4}},
    {"and back", "1,1 1,1", {1, 1, 1, 3, 1}},
    {"back from another cell of the crossing one", "1,1 1,4", {1, 1, 4, 3, 4}},
    {"no word crosses: the selection is empty", "2,1", {2, 2, 0, 2, -1}},
    {"a cell elsewhere keeps the direction", "5,2", {1, 3, 2, 5, 2}},
    {"also down", "1,1 5,4", {2, 5, 1, 5, 4}},
    {"no word of that direction there: an earlier one", "1,1 3,4", {2, 3, 1, 3, 2}},
    {"nor an earlier one: the selection is empty", "1,3", {1, 0, 3, -1, 3}},
    {"after an empty selection the direction stays", "1,3 3,4", {1, 1, 4, 3, 4}},
    {"a blocked cell changes nothing", "1,1 4,1", {2, 1, 1, 1, 4}},
    {"nor does it before the next click", "4,1 4,1 1,1", {2, 1, 1, 1, 4}},
    {"a clue of the other direction", "D2", {2, 3, 1, 3, 2}},
    {"of the same", "A2", {1, 3, 2, 5, 2}},
    {"a cell of the clue's word turns", "D2 3,2", {1, 3, 2, 5, 2}},
    {"the turn that a crossing clue saved up comes with the next click",
     "D2 A2 1,4",
     {2, 1, 1, 1, 4}},
    {"and only with that", "D2 A2 1,4 5,4", {2, 5, 1, 5, 4}},
};

TEST_F(WordSelection, SelectsByClicks) {
  for (const Clicks& sequence : clicks) {
    SCOPED_TRACE(sequence.name);
    Solve({.rows = puzzle_rows});
    Click(sequence.targets);
    EXPECT_EQ(Selection(), sequence.word);
    ExpectScreenOfState();
  }
}

TEST_F(WordSelection, AClickOnACellWithOneWordSelectsItIfThatIsChosen) {
  const Clicks only_words[] = {{"", "2,1", {1, 1, 1, 3, 1}},
                               {"", "2,1 1,1 2,1", {1, 1, 1, 3, 1}},
                               {"", "5,1 4,2 1,2 2,4", {1, 1, 4, 3, 4}},
                               {"", "D2 A2 5,4 5,2", {1, 3, 2, 5, 2}},
                               {"two words turn as ever", "1,1 5,1 3,2", {2, 3, 1, 3, 2}}};
  for (const Clicks& sequence : only_words) {
    SCOPED_TRACE(sequence.targets);
    Solve({.rows = puzzle_rows});
    glavni.bira_jedinu = true;
    Click(sequence.targets);
    EXPECT_EQ(Selection(), sequence.word);
    EXPECT_EQ(glavni.vest.news, News::none);
    ExpectScreenOfState();
    glavni.bira_jedinu = false;
  }
  Click("2,1");
  EXPECT_EQ(glavni.vest.news, News::nothing_selected);
}

TEST_F(WordSelection, CountsCellsByPixelsUpToTheEdgeOfTheGrid) {
  const std::vector<std::string> large(16, std::string(16, 'A'));
  for (const auto& [rows, x, y, cell_x, cell_y] : {std::tuple{large, 0, 1, 1, 1},
                                                   {large, 27, 28, 1, 2},
                                                   {large, 28, 27, 2, 1},
                                                   {large, 419, 419, 15, 15},
                                                   {puzzle_rows, 13 * 28, 14 * 28, 5, 4},
                                                   {puzzle_rows, 5, 14 * 28, 1, 4}}) {
    Solve(Qvm(rows));
    ClickPicture("pic_ukr", x, y);
    EXPECT_EQ(glavni.klik_x, cell_x) << x;
    EXPECT_EQ(glavni.klik_y, cell_y) << y;
    EXPECT_EQ(Selection()[2], cell_y);
    ExpectScreenOfState();
  }
}

TEST_F(WordSelection, KeepsTheOldWordWhenAClueHasNone) {
  const std::vector<std::string> long_row = {"AAAAAAAAAAAAAAAAAA#"};
  for (const auto& [clue, rows] :
       {std::pair{"A2", puzzle_rows}, {"D3", puzzle_rows}, {"A2", long_row}, {"D1", long_row}}) {
    SCOPED_TRACE(clue);
    Solve(WithStartOnBlockedCell(rows));
    const Word old_word = Selection();
    const int old_bar = glavni.sel_broj;
    Click(clue);
    EXPECT_NE(glavni.sel_broj, old_bar) << "the click met no other clue";
    EXPECT_EQ(Selection(), old_word);
    ExpectScreenOfState();
    Keys("q Return");
    EXPECT_EQ(Letters()[0], 'Q' + std::string(rows[0].size() - 1, ' '));
    EXPECT_EQ(Selection(), old_word);
    const int x = glavni.pogled_x + 1;
    ClickCell(x, 1);
    EXPECT_EQ(Selection(), (Word{2, x, 0, x, -1}));
    ExpectScreenOfState();
  }
}

TEST_F(WordSelection, TheNextWordWithAnEmptyCellMayCrossTheSelectedOneBehindABlock) {
  Solve({.rows = {"#A#", "BCD", "#E#"}, .letters = {"", "BCD"}});
  sledeca_prazna();
  EXPECT_EQ(Selection(), (Word{2, 2, 1, 2, 3}));
  ExpectScreenOfState();
  resi_rec();
  sledeca_prazna();
  EXPECT_EQ(glavni.vest.news, News::no_empty_cell);
}

}  // namespace kalvon::testing
