// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"

namespace kalvon {

/// The places of a word in its row (across) or column (down): the first and the last column or row.
struct WordSpan {
  int first = 0;
  int last = 0;
};

/// Finds the word of a direction through a cell. The nearest word start before the cell begins it;
/// blocked cells between them don't stop the search. Without one, `first` is 0 and the span is
/// empty. Error 9 for a cell outside the grid.
WordSpan FindWord(const Crossword& crossword, GridCell cell, int direction);

/// Whether a word of the direction lies in a cell of the grid.
bool LiesInWord(const Crossword& crossword, GridCell cell, int direction);

}  // namespace kalvon
