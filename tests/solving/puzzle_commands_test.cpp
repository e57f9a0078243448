// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/screen.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

using PuzzleCommands = PuzzleTest;
using Grid = std::vector<std::string>;

TEST_F(PuzzleCommands, SolveAndEraseTheSelectedWord) {
  // Right, wrong and missing letters; the word is that through the cell.
  struct Case {
    std::pair<int, int> cell;
    Grid solved, erased;
  };
  const Grid letters = {"QA   ", "B    ", "     ", "  C  "};
  for (const Case& c :
       {Case{{5, 2}, {"QA   ", "B IRM", "     ", "  C  "}, letters},
        {{1, 4}, {"QA   ", "B    ", "     ", "OKO  "}, {"QA   ", "B    ", "     ", "     "}},
        {{1, 1}, {"QA   ", "A    ", "T    ", "O C  "}, {" A   ", "     ", "     ", "  C  "}},
        {{1, 3}, letters, letters}}) {  // No word.
    Solve({.rows = puzzle_rows, .letters = letters});
    ClickCell(c.cell.first, c.cell.second);
    Keys("Right k");  // Typed but not entered, so it is lost.
    ClickButton("cmd_glavni(3)");
    EXPECT_EQ(Letters(), c.solved);
    ExpectScreenOfState();
    ClickButton("cmd_glavni(4)");
    EXPECT_EQ(Letters(), c.erased);
    EXPECT_EQ(Cell(1, 1), c.erased[0][0] == 'Q' ? "QQ$0$1$1$00" : "Q$0$1$1$00");
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
    ExpectScreenOfState();
  }
}

TEST_F(PuzzleCommands, WorkOnTheWholePuzzle) {
  struct Operation {
    const char* button;
    Grid letters;
    const char *word, *count;
  };
  Solve({.rows = {"QX#W", "A..M"}, .letters = {"QA W", "   B"}});
  for (const auto& [button, letters, word, count] :
       {Operation{"cmd_opcije(4)", {"QA W", "   B"}, "KA", "2"},  // Counts wrong letters.
        {"cmd_opcije(5)", {"Q  W", "    "}, "Q_", "2"},           // Erases them.
        {"cmd_opcije(4)", {"Q  W", "    "}, "Q_", "0"},
        {"cmd_opcije(3)", {"QX W", "A  M"}, "QX", "0"},  // Solves all.
        {"cmd_opcije(2)", {"    ", "    "}, "__", "0"}}) {
    SCOPED_TRACE(button);
    if (!frm_opcije->Visible()) {
      Keys("k");  // Counting leaves the editor alone.
      ClickButton("cmd_glavni(5)");
    }
    ClickButton(button);
    EXPECT_EQ(Letters(), letters);
    EXPECT_EQ(glavni.rec_tekst, word);
    EXPECT_EQ(frm_opcije->Label2.Caption(), count);
    EXPECT_EQ(Cell(3, 1) + Cell(2, 2), "$1$");
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    ExpectScreenOfState(glavni.rec_tekst == "KA");
  }
}

}  // namespace kalvon::testing
