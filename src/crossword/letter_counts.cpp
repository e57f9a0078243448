// SPDX-License-Identifier: MIT
#include "crossword/letter_counts.h"

#include <string_view>

#include "crossword/cell.h"

namespace kalvon {

LetterCounts CountLetters(const Crossword& crossword) {
  LetterCounts counts;
  for (int x = 1; x <= crossword.ukr_sirina; ++x) {
    for (int y = 1; y <= crossword.ukr_visina; ++y) {
      const std::string_view cell = crossword.ukr_polja(x, y, 1);
      if (!IsLetterCell(cell)) continue;
      ++counts.cells;
      if (!HasSolution(cell)) ++counts.unknown;
      const std::string_view letter = UserLetter(cell);
      if (letter.empty()) continue;
      ++counts.filled;
      if (HasSolution(cell) && letter.front() == cell.front()) ++counts.right;
    }
  }
  return counts;
}

}  // namespace kalvon
