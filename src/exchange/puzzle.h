// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "crossword/crossword.h"

namespace kalvon::exchange {

// A crossword as the formats of other programs know it. All texts are UTF-8, without markup. Each
// format reads into this value and writes from it; storing.h joins it to the crossword of this
// program.

enum class CellKind {
  letter,
  block,
  empty,  ///< A hole in the grid: no cell, and no block that is drawn.
};

struct PuzzleCell {
  CellKind kind = CellKind::letter;
  std::string solution = {};  ///< Its letter, or several for a rebus; empty if it is not known.
  std::string entry = {};     ///< What the user has written, empty for nothing.
  std::string number = {};    ///< The number that the file prints in it, empty for none.
  bool blank_right = false;   ///< A blank of the answer lies between it and the cell to the right.
  bool blank_below = false;   ///< And between it and the cell below.

  bool operator==(const PuzzleCell&) const = default;
};

struct PuzzleClue {
  int direction = 0;   ///< One of `direction`.
  GridCell cell = {};  ///< Where its word starts. (0, 0) for a clue to which the grid has no word.
  std::string number = {};  ///< As the file gives it.
  std::string text = {};
  std::string medium = {};  ///< Name of a file that belongs to the clue, empty for none.

  bool operator==(const PuzzleClue&) const = default;
};

struct Puzzle {
  std::string title = {};
  std::string author = {};
  std::string copyright = {};
  std::string description = {};
  std::string language = {};           ///< "sr" or "en", or empty if the file does not say.
  int width = 0;                       ///< Columns.
  int height = 0;                      ///< Rows.
  int installments = 1;                ///< Into how many files of this program it is divided.
  int join = join::none;               ///< How those are joined, one of `join`.
  std::vector<PuzzleCell> cells = {};  ///< Row by row, `width` x `height` of them.
  std::vector<PuzzleClue> clues =
      {};  ///< Those across before those down, each in the file's order.

  /// A cell of the grid, counted from 1.
  [[nodiscard]] PuzzleCell& At(GridCell cell) { return cells.at(Place(cell)); }
  [[nodiscard]] const PuzzleCell& At(GridCell cell) const { return cells.at(Place(cell)); }
  /// Whether a letter stands there; none does beyond the grid.
  [[nodiscard]] bool HasLetter(GridCell cell) const;

  bool operator==(const Puzzle&) const = default;

 private:
  [[nodiscard]] std::size_t Place(GridCell cell) const {
    return static_cast<std::size_t>(cell.y - 1) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(cell.x - 1);
  }
};

/// An empty grid of this size, all letters without a solution. ConversionError for a grid without
/// cells, or with more than this program can hold.
Puzzle EmptyPuzzle(int width, int height);

/// A cell in which a word starts by the usual rule: no letter before it, one behind it. Formats
/// that give no numbers count on it.
struct WordStart {
  GridCell cell;
  int number = 0;  ///< Row by row from 1, one for both words of a cell.
  int kind = 0;    ///< The sum of the directions of its words.
};
std::vector<WordStart> WordStarts(const Puzzle& puzzle);

}  // namespace kalvon::exchange
