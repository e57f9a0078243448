// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"

namespace kalvon {

/// Writes the cells of all installments that were read back into their files, each whether or not
/// another one fails. A file's header, clues and line ends stay as they are, and so do a file that
/// is shorter than its size and one that has become another crossword. All together wait a second
/// for other programs. Returns the number of the first error, as for FileRewrite and TextReader, or
/// 0; the file that failed is as it was.
int WriteCrossword(const Crossword& crossword);

}  // namespace kalvon
