// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "crossword/cell.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

/// Direction (1 across, 2 down), first column and row, last column and row.
using Word = std::array<int, 5>;

/// A program in Latin script on a YU ASCII keyboard, with the means to solve a puzzle and to look
/// at the screen.
class PuzzleTest : public ProgramTest {
 protected:
  using ProgramTest::ProgramTest;
  void SetUp() override;

  /// Loads a crossword, which selects the word of its first across clue, and goes to its first box.
  void Solve(const std::string& qvm);
  void Solve(const CrosswordText& text) { Solve(Qvm(text)); }

  /// Chooses script (0 Cyrillic, 1 Latin) and keyboard layout (0 YU ASCII, 1 Unicode).
  void Choose(int script, int layout);
  /// Types a script such as "m Ctrl+Left Box2": letters as they are, other keys by name; a click on
  /// the third letter box.
  void Keys(const std::string& script);
  /// Clicks a row of a list, both from 1.
  void ClickClue(int list, int row, int button = 1);

  static Word Selection();
  static const std::string& Cell(int x, int y) { return glavni.ukr_polja(x, y, 1); }
  /// The user's letters of the grid row by row; a blank for none.
  static std::vector<std::string> Letters();
  /// First and last row, from 1, of each clue on the page of a list, by the number of the clue.
  static std::map<int, std::pair<int, int>> Page(int list);
  /// What the screen shows of a control.
  [[nodiscard]] QImage Shown(const std::string& control) const;

  /// Expects what must hold after every event: grid and lists look as if they were painted anew,
  /// with a mark on the selected word and its clue; the letter boxes show the editor and the editor
  /// the cells, unless letters may have been `typed` since it was filled.
  void ExpectScreenOfState(bool typed = false) const;

 private:
  static void ExpectEditor(bool typed);
  static void PaintAnew();
};

/// Rows of a puzzle with digraph letters. Column 4 has no word down, and the word down before the O
/// of OKO is WI, two blocked cells away.
inline const std::vector<std::string> puzzle_rows = {"QXW#K", "A#IRM", "T###A", "OKO#S"};

}  // namespace kalvon::testing
