// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"

namespace kalvon {

/// Writes the cells of an installment back into its file, unless it was missing when the crossword
/// was read. The header, and a file that is shorter than its size, stay as they are. A file that
/// has become another crossword stays, too. Errors as for FileRewrite and TextReader: the file then
/// is as it was.
void WriteInstallment(const Crossword& crossword, int installment);

/// Writes all installments, each whether or not another one fails. Returns the number of the first
/// error, or 0.
int WriteCrossword(const Crossword& crossword);

}  // namespace kalvon
