// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "crossword/crossword.h"

namespace kalvon {

/// How the save of an installment went.
struct InstallmentSave {
  int installment = 0;
  int error = 0;  ///< 0 if it is written; else its file is as it was.
};

/// Writes the cells of all installments that were read back into their files, each whether or not
/// another one fails. A file's header, clues and line ends stay as they are, and so does a file
/// that is shorter than its size. All together wait a second for other programs. The errors are
/// those of FileRewrite and TextReader, 321 for a file that has become another crossword, and 9 for
/// a crossword that was not read to its end.
std::vector<InstallmentSave> WriteCrossword(const Crossword& crossword);

}  // namespace kalvon
