// SPDX-License-Identifier: MIT
#include "display/selected_word.h"

#include <array>

#include "solving/solving_test.h"

namespace kalvon::testing {
namespace {

/// Fills the state from the rows of a grid and as many rows of word starts. '#' is a blocked and
/// '.' an empty cell; 'a' starts a word across, 'd' one down, 'b' both.
void FillGrid(const std::vector<std::string>& cells, const std::vector<std::string>& starts) {
  glavni = CrosswordState{};
  const int width = static_cast<int>(cells[0].size());
  const int height = static_cast<int>(cells.size());
  glavni.ukr_sirina = width;
  glavni.ukr_visina = height;
  glavni.ukr_polja = Table<std::string, 3>({{{0, width}, {0, height}, {0, 2}}});
  glavni.pogled_x = glavni.pogled_y = 1;
  for (int y = 1; y <= height; ++y) {
    for (int x = 1; x <= width; ++x) {
      const auto row = static_cast<std::size_t>(y - 1);
      const auto column = static_cast<std::size_t>(x - 1);
      const char cell = cells[row][column];
      const char start = starts[row][column];
      if (cell == '#') glavni.ukr_polja.Mutable(x, y, 1) = "$1$";
      if (cell != '#' && cell != '.')
        glavni.ukr_polja.Mutable(x, y, 1) = std::string(1, cell) + "$0$0$0$00";
      if (start == 'a') glavni.ukr_polja.Mutable(x, y, 2) = "010$$$$A$$";
      if (start == 'd') glavni.ukr_polja.Mutable(x, y, 2) = "001$$$$$D$";
      if (start == 'b') glavni.ukr_polja.Mutable(x, y, 2) = "011$$$$A$D$";
    }
  }
}

struct Search {
  const char* name;
  std::vector<std::string> cells;
  std::vector<std::string> starts;
  int x, y;
  Word across, down;  // What each direction finds at (x, y).
};

const std::vector<Search> searches = {
    {"start of both", {"AB", "CD"}, {"b ", "  "}, 1, 1, {1, 1, 1, 2, 1}, {2, 1, 1, 1, 2}},
    {"last cell of both",
     {"ABC", "D#E", "FGH"},
     {"  d", "   ", "a  "},
     3,
     3,
     {1, 1, 3, 3, 3},
     {2, 3, 1, 3, 3}},
    {"ends before a blocked or an empty cell",
     {"ABC#", "D   ", ".   ", "E   "},
     {"b   ", "    ", "    ", "    "},
     1,
     1,
     {1, 1, 1, 3, 1},
     {2, 1, 1, 1, 2}},
    {"an earlier word behind blocked and empty cells",
     {"AB#.C", "B    ", "#    ", ".    ", "C    "},
     {"b    ", "     ", "     ", "     ", "     "},
     5,
     1,
     {1, 1, 1, 2, 1},
     {2, 5, 0, 5, -1}},
    {"the same down",
     {"A", "B", "#", ".", "C"},
     {"d", " ", " ", " ", " "},
     1,
     5,
     {1, 0, 5, -1, 5},
     {2, 1, 1, 1, 2}},
    {"no start before the cell", {"ABC"}, {"  b"}, 2, 1, {1, 0, 1, -1, 1}, {2, 2, 0, 2, -1}},
    {"a start on a blocked or an empty cell is none",
     {"A#.BC"},
     {"aba  "},
     5,
     1,
     {1, 1, 1, 1, 1},
     {2, 5, 0, 5, -1}},
    {"a second start parts no word", {"ABCD"}, {"a a "}, 1, 1, {1, 1, 1, 4, 1}, {2, 1, 0, 1, -1}},
    {"but is the nearest one behind it",
     {"ABCD"},
     {"a a "},
     4,
     1,
     {1, 3, 1, 4, 1},
     {2, 4, 0, 4, -1}},
};

class WordSearchTest : public ::testing::Test {};

TEST_F(WordSearchTest, FindsTheWordThroughACell) {
  for (const Search& search : searches) {
    SCOPED_TRACE(search.name);
    for (const Word& expected : {search.across, search.down}) {
      FillGrid(search.cells, search.starts);
      glavni.smer = 3 - expected.direction;
      glavni.klik_x = search.x;
      glavni.klik_y = search.y;
      nadji_rec();
      EXPECT_EQ((Word{glavni.smer, glavni.rec_x1, glavni.rec_y1, glavni.rec_x2, glavni.rec_y2}),
                expected);
    }
  }
}

TEST_F(WordSearchTest, CountsTheClickFromTheViewsCorner) {
  FillGrid({"ABCDE", "FGHIJ"}, {"     ", "a    "});
  glavni.smer = 2;
  glavni.pogled_x = 3;
  glavni.pogled_y = 2;
  glavni.klik_x = glavni.klik_y = 1;
  nadji_rec();
  EXPECT_EQ(glavni.rec_x1, 1);
  EXPECT_EQ(glavni.rec_x2, 5);
  EXPECT_EQ(glavni.rec_y1, 2);
}

struct Turn {
  int smer, prelaz;
  int then_smer, then_prelaz;
};

TEST_F(WordSearchTest, KeepsTheDirectionTwiceAfterAClueWasClicked) {
  const std::vector<Turn> turns = {{1, 0, 2, 0}, {2, 0, 1, 0}, {1, 1, 1, 2},
                                   {2, 1, 2, 2}, {1, 2, 1, 0}, {2, 2, 2, 0}};
  for (const Turn& turn : turns) {
    FillGrid({"A"}, {"b"});
    glavni.klik_x = glavni.klik_y = 1;
    glavni.smer = turn.smer;
    glavni.prelaz = turn.prelaz;
    nadji_rec();
    EXPECT_EQ(glavni.smer, turn.then_smer) << turn.smer << turn.prelaz;
    EXPECT_EQ(glavni.prelaz, turn.then_prelaz) << turn.smer << turn.prelaz;
  }
}

}  // namespace
}  // namespace kalvon::testing
