// SPDX-License-Identifier: MIT
#include "solving/word_selection.h"

#include "solving/solving_test.h"

namespace kalvon::testing {
namespace {

class WordSelectionTest : public SolvingTest {
 protected:
  /// The selection, what is marked and what is in the letter boxes are one and the same word.
  void ExpectWord(const Word& word) {
    EXPECT_EQ(Selection(), word);
    EXPECT_EQ(MarkedCells(), VisibleCells(word));
    const int length = (word.direction == 1 ? word.x2 - word.x1 : word.y2 - word.y1) + 1;
    EXPECT_EQ(glavni.rec_tekst.size(), static_cast<std::size_t>(length));
    EXPECT_EQ(
        (Word{glavni.prelaz_smer, glavni.pret_x1, glavni.pret_y1, glavni.pret_x2, glavni.pret_y2}),
        word);
    EXPECT_EQ(glavni.iz_liste, 0);
  }
};

struct Clicks {
  const char* name;
  std::vector<std::pair<int, int>> cells;
  Word word;
};

const std::vector<Clicks> clicks = {
    {"none: the first clue's word", {}, word_qxw},
    {"a cell of the word turns to the crossing one", {{1, 1}}, {2, 1, 1, 1, 4}},
    {"and back", {{1, 1}, {1, 1}}, word_qxw},
    {"back from another cell of the crossing one", {{1, 1}, {1, 4}}, {1, 1, 4, 3, 4}},
    {"no word crosses: the selection is empty", {{2, 1}}, {2, 2, 0, 2, -1}},
    {"a cell elsewhere keeps the direction", {{5, 2}}, {1, 3, 2, 5, 2}},
    {"also down", {{1, 1}, {5, 4}}, {2, 5, 1, 5, 4}},
    {"no word of that direction there: an earlier one", {{1, 1}, {3, 4}}, {2, 3, 1, 3, 2}},
    {"nor an earlier one: the selection is empty", {{1, 3}}, {1, 0, 3, -1, 3}},
    {"after an empty selection the direction stays", {{1, 3}, {3, 4}}, {1, 1, 4, 3, 4}},
    {"a blocked cell changes nothing", {{1, 1}, {4, 1}}, {2, 1, 1, 1, 4}},
    {"nor does it before the next click", {{4, 1}, {4, 1}, {1, 1}}, {2, 1, 1, 1, 4}},
};

TEST_F(WordSelectionTest, SelectsByClicksInTheGrid) {
  for (const Clicks& sequence : clicks) {
    SCOPED_TRACE(sequence.name);
    Solve({.rows = puzzle_rows});
    for (const auto& [x, y] : sequence.cells) ClickCell(x, y);
    ExpectWord(sequence.word);
  }
}

TEST_F(WordSelectionTest, LeavesTheClickedCellOnRecordWhenItIsBlocked) {
  Solve({.rows = puzzle_rows});
  ClickCell(5, 2);
  ClickCell(4, 3);
  EXPECT_EQ(glavni.klik_x, 5);
  EXPECT_EQ(glavni.klik_y, 2);
}

struct Pixel {
  int x, y;
  int cell_x, cell_y;
};

TEST_F(WordSelectionTest, CountsCellsByPixels) {
  Solve({.rows = std::vector<std::string>(16, std::string(16, 'A'))});
  const std::vector<Pixel> pixels = {
      {0, 1, 1, 1}, {27, 28, 1, 2}, {28, 27, 2, 1}, {419, 419, 15, 15}};
  for (const Pixel& pixel : pixels) {
    ClickPicture("pic_ukr", pixel.x, pixel.y);
    EXPECT_EQ(glavni.klik_x, pixel.cell_x) << pixel.x;
    EXPECT_EQ(glavni.klik_y, pixel.cell_y) << pixel.y;
  }
  klik_polje(-3, 1e9);
  EXPECT_EQ(glavni.klik_x, 1);
  EXPECT_EQ(glavni.klik_y, 15);
}

TEST_F(WordSelectionTest, TakesAClickBeyondTheGridAsOneOnItsEdge) {
  Solve({.rows = puzzle_rows});
  ClickPicture("pic_ukr", 13 * 28, 14 * 28);
  EXPECT_EQ(glavni.klik_x, 5);
  EXPECT_EQ(glavni.klik_y, 4);
  ExpectWord({1, 1, 4, 3, 4});
  ClickPicture("pic_ukr", 5, 14 * 28);
  ExpectWord({2, 1, 1, 1, 4});
}

/// Lets a word across and one down start in the first blocked cell.
std::string WithStartOnBlockedCell(const std::vector<std::string>& rows) {
  const std::string blocked = "\r\n$1$\r\n";
  std::string qvm = Qvm(rows);
  return qvm.insert(qvm.find(blocked) + blocked.size(), "011$$$$Prvo$Drugo$");
}

struct BlockedClue {
  const char* name;
  std::vector<std::string> rows;
  const char* list;
  int row;  // On the list's page, from 1.
};

const std::vector<BlockedClue> blocked_clues = {
    {"across", puzzle_rows, "pic_tekst(0)", 2},
    {"down", puzzle_rows, "pic_tekst(1)", 3},
    {"across, out of the view", {"AAAAAAAAAAAAAAAAAA#"}, "pic_tekst(0)", 2},
    {"down, out of the view", {"AAAAAAAAAAAAAAAAAA#"}, "pic_tekst(1)", 1},
};

TEST_F(WordSelectionTest, KeepsTheOldWordWhenAClueHasNone) {
  for (const BlockedClue& clue : blocked_clues) {
    SCOPED_TRACE(clue.name);
    Solve(WithStartOnBlockedCell(clue.rows));
    const Word old_word = Selection();
    const int oldest_bar = glavni.sel_broj;
    ClickPicture(clue.list, 20, 15 * clue.row - 8);
    ASSERT_NE(glavni.sel_broj, oldest_bar) << "the click met no other clue";
    ExpectWord(old_word);

    Keys("q Enter");
    std::vector<std::string> expected(clue.rows.size(), std::string(clue.rows[0].size(), ' '));
    expected[0][0] = 'Q';
    EXPECT_EQ(Letters(), expected);
    ExpectWord(old_word);

    const int x = glavni.pogled_x + 1;
    ClickCell(x, 1);
    EXPECT_EQ(Selection(), (Word{2, x, 0, x, -1}));
    EXPECT_EQ(MarkedCells(), Cells{});
  }
}

TEST_F(WordSelectionTest, TakesTheMarkOffAWordThatAClueSelected) {
  Solve({.rows = puzzle_rows});
  ClickPicture("pic_tekst(1)", 20, 22);  // The second word down.
  ExpectWord({2, 3, 1, 3, 2});
  ClickPicture("pic_tekst(0)", 20, 22);  // The word across that crosses it.
  ExpectWord({1, 3, 2, 5, 2});
  // The turn that the crossing clue has saved up comes with the next click.
  ClickCell(1, 4);
  ExpectWord({2, 1, 1, 1, 4});
}

}  // namespace
}  // namespace kalvon::testing
