// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "crossword/crossword.h"

namespace kalvon {

/// Is told of every step of a reading: a line of a header, a cell read, a cell numbered.
using Progress = std::function<void()>;

/// Reads the crossword of a file: joins its installments into one grid and numbers the clues. The
/// path is one of the logic, as are all paths. Errors of files that cannot be read, as for
/// TextReader; 5 for a name without an extension, 6 and 9 for a crossword that is too large.
Crossword ReadCrossword(
    const std::string& path, const Progress& progress = [] {});

// The steps of it, for a caller that shows the crossword while it grows.

/// An empty crossword of the size that the header of the chosen file says, with its installments
/// among the crosswords of its folder. Fails as ReadCrossword.
Crossword OpenCrossword(const std::string& path, const std::vector<std::string>& folder);

/// Steps that the cells take: one when a cell is read and one when it is numbered. Error 6 for more
/// than 16383 cells.
Int16 StepsOf(const Crossword& crossword);

/// Reads all installments into an opened crossword; one that is missing is filled with black
/// squares. Errors of a file that cannot be read, or of a cell outside the grid, end the reading.
void ReadInstallments(Crossword& crossword, const Progress& progress);

}  // namespace kalvon
