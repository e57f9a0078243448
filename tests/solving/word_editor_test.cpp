// SPDX-License-Identifier: MIT
#include "support/puzzle_test.h"

namespace kalvon::testing {

using WordEditor = PuzzleTest;

struct Editing {
  const char* name;
  const char* keys;
  const char* text;
  int position;
};

const Editing editings[] = {
    {"nothing yet", "", "___", 0},
    {"letters go on to the next box", "q x", "QX_", 2},
    {"and are overwritten in the last", "q x w k", "QXK", 2},
    {"left stops at the first box", "q Left Left w", "W__", 1},
    {"up is left, right and down stop at the last", "Down Right Down Up k", "_K_", 2},
    {"backspace blanks and goes back", "q x w Backspace Backspace", "Q__", 0},
    {"but stays in the first box", "q Left Backspace", "___", 0},
    {"delete blanks and stays", "q x Left Delete Delete", "Q__", 1},
    {"space blanks and goes on", "q x w Home Space", "_XW", 1},
    {"but stays in the last box", "q x w Space", "QX_", 2},
    {"home and end", "End w Home q End Left", "Q_W", 1},
    {"brackets are letters", "{ ] |", "[]\\", 2},
    {"characters with codes of editing keys are no keys", "q x w Left .%&'(#$-", "QXW", 1},
    {"capitals, digits and others are refused", "q Left ABY@^1y,", "Q__", 0},
    {"a box that was clicked", "q Box2 w Box0 Left", "Q_W", 1},
    {"a box past the end of the word", "q Box3 k Box14 k", "Q__", 1},
};

TEST_F(WordEditor, EditsTheWordByKeys) {
  for (const Editing& editing : editings) {
    SCOPED_TRACE(editing.name);
    Solve({.rows = puzzle_rows});
    Keys(editing.keys);
    EXPECT_EQ(glavni.rec_tekst, editing.text);
    EXPECT_EQ(glavni.rec_poz, editing.position);
    EXPECT_EQ(FocusedControl(), "txt_rec(" + std::to_string(editing.position) + ")");
    ExpectScreenOfState(true);
    ClickCell(4, 1);
    EXPECT_EQ(glavni.rec_tekst, editing.text) << "a blocked cell changes nothing";
    ClickCell(5, 2);
    ClickCell(1, 1);
    EXPECT_EQ(glavni.rec_tekst, "___") << "nothing was entered";
    ExpectScreenOfState();
  }
}

TEST_F(WordEditor, EntersTheWordIntoItsCells) {
  Solve({.rows = puzzle_rows, .letters = {"", "B"}});
  for (const auto& [keys, letters] : {std::pair{"q x Return", "QX   "},
                                      {"Right w Return", "QW   "},
                                      {"Return", "QW   "},
                                      {"End k Return", "QWK  "},
                                      {"Space Right Space Return", " W   "},
                                      {"m Delete Return", "M    "},
                                      {"Delete Return", "     "}}) {
    Keys(keys);
    EXPECT_EQ(Letters(), (std::vector<std::string>{letters, "B    ", "     ", "     "})) << keys;
    EXPECT_EQ(WithoutUserLetter(Cell(1, 1)), "Q$0$1$1$00");
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
    ExpectScreenOfState();
  }
}

TEST_F(WordEditor, EditsOnlyTheBoxesOfALongWord) {
  Solve({.rows = {std::string(18, 'A')}, .letters = {"BBBBBBBBBBBBBBBBBC"}});
  Keys("End k Right Right Space End Backspace End m");
  EXPECT_EQ(glavni.rec_tekst, "BBBBBBBBBBBBBBMBBC");
  ExpectScreenOfState(true);
  Keys("Return");
  EXPECT_EQ(Letters()[0], "BBBBBBBBBBBBBBMBBC");
}

}  // namespace kalvon::testing
