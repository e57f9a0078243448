// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "crossword/crossword.h"
#include "exchange/remark.h"

namespace kalvon::exchange {

/// The stored form of a cell without a solution.
inline constexpr char unknown_letter = '?';

/// The stored letter of a cell's solution, `unknown_letter` for none. ConversionError, which names
/// the cell, for what is no letter, unless the reading is lenient.
char CellLetter(std::string_view text, GridCell cell, bool english, bool lenient, Remarks& remarks);

/// The stored letter of what a user has written, 0 for what is none.
char EntryLetter(std::string_view text, bool english);

}  // namespace kalvon::exchange
