// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"

namespace kalvon {

/// The letter cells of a crossword, by what the user has put into them.
struct LetterCounts {
  int cells = 0;
  int filled = 0;
  int right = 0;
  int unknown = 0;  ///< Cells without a solution, in which no letter is right or wrong.

  /// Whether every letter is there and right.
  [[nodiscard]] bool Solved() const { return cells > 0 && right == cells; }
};

LetterCounts CountLetters(const Crossword& crossword);

}  // namespace kalvon
