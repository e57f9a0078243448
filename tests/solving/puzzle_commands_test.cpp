// SPDX-License-Identifier: MIT
#include "solving/puzzle_commands.h"
#include "shell/toolkit/desktop/screen.h"

#include "solving/solving_test.h"

namespace kalvon::testing {
namespace {

using Rows = std::vector<std::string>;

class PuzzleCommandsTest : public SolvingTest {};

TEST_F(PuzzleCommandsTest, SolvesAndErasesTheSelectedWord) {
  // Right, wrong and missing letters, across and, through the second click, down.
  const Rows letters = {"QA   ", "B    ", "     ", "  C  "};
  for (const bool down : {false, true}) {
    Solve({.rows = puzzle_rows, .letters = letters});
    if (down) ClickCell(1, 1);
    const Word word = Selection();
    Keys("Right k");  // Typed but not entered, so it is lost.
    ClickButton("cmd_glavni(3)");
    EXPECT_EQ(Letters(), down ? (Rows{"QA   ", "A    ", "T    ", "O C  "})
                              : (Rows{"QXW  ", "B    ", "     ", "  C  "}));
    EXPECT_EQ(glavni.rec_tekst, down ? "QATO" : "QXW");
    EXPECT_EQ(Cell(1, 1), "QQ$0$1$1$00");
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
    EXPECT_EQ(MarkedCells(), VisibleCells(word));

    ClickButton("cmd_glavni(4)");
    EXPECT_EQ(Letters(), down ? (Rows{" A   ", "     ", "     ", "  C  "})
                              : (Rows{"     ", "B    ", "     ", "  C  "}));
    EXPECT_EQ(glavni.rec_tekst, down ? "____" : "___");
    EXPECT_EQ(Cell(1, 1), "Q$0$1$1$00");
    EXPECT_EQ(MarkedCells(), VisibleCells(word));
  }
}

TEST_F(PuzzleCommandsTest, ChangesNoCellWithoutASelectedWord) {
  const Rows letters = {"QA   ", "B    ", "C    ", "  C  "};
  Solve({.rows = puzzle_rows, .letters = letters});
  ClickCell(1, 3);
  ClickButton("cmd_glavni(3)");
  ClickButton("cmd_glavni(4)");
  EXPECT_EQ(Letters(), letters);
  EXPECT_EQ(MarkedCells(), Cells{});
}

struct Operation {
  const char* name;
  const char* button;
  Rows letters;
  const char* word;
  const char* count;
};

TEST_F(PuzzleCommandsTest, WorksOnTheWholePuzzle) {
  const Rows rows = {"QX#W", "A..M"};
  const Rows letters = {"QA W", "   B"};
  const std::vector<Operation> operations = {
      {"erase all", "cmd_opcije(2)", {"    ", "    "}, "__", ""},
      {"solve all", "cmd_opcije(3)", {"QX W", "A  M"}, "QX", ""},
      {"count wrong letters", "cmd_opcije(4)", {"QA W", "   B"}, "QA", "2"},
      {"erase wrong letters", "cmd_opcije(5)", {"Q  W", "    "}, "Q_", ""},
  };
  for (const Operation& operation : operations) {
    SCOPED_TRACE(operation.name);
    Solve({.rows = rows, .letters = letters});
    ClickButton("cmd_glavni(5)");
    ClickButton(operation.button);
    EXPECT_EQ(Letters(), operation.letters);
    EXPECT_EQ(glavni.rec_tekst, operation.word);
    EXPECT_EQ(frm_opcije->Label2.Caption(), operation.count);
    EXPECT_EQ(Cell(3, 1), "$1$");
    EXPECT_EQ(Cell(2, 2), "");
    EXPECT_TRUE(Cell(1, 1).ends_with("$0$1$1$00"));
    EXPECT_EQ(MarkedCells(), (Cells{{1, 1}, {2, 1}}));
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    ClickButton("cmd_opcije(0)");
  }
}

TEST_F(PuzzleCommandsTest, KeepsTheCountUntilItIsAskedForAgain) {
  Solve({.rows = puzzle_rows, .letters = {"AXA"}});
  Keys("k");
  ClickButton("cmd_glavni(5)");
  ClickButton("cmd_opcije(4)");
  EXPECT_EQ(frm_opcije->Label2.Caption(), "2");
  EXPECT_EQ(glavni.rec_tekst, "KXA") << "counting leaves the editor alone";
  ClickButton("cmd_opcije(5)");
  EXPECT_EQ(frm_opcije->Label2.Caption(), "2");
  EXPECT_EQ(glavni.rec_tekst, "_X_");
  ClickButton("cmd_opcije(4)");
  EXPECT_EQ(frm_opcije->Label2.Caption(), "0");
}

}  // namespace
}  // namespace kalvon::testing
