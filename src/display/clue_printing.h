// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// So many characters never fit in a row, and so many rows reach far below the box: what lies
/// behind them in an endless clue is neither converted, measured nor printed.
inline constexpr std::size_t row_characters_at_most = 200;
inline constexpr int rows_at_most = 100;
inline constexpr std::size_t printed_at_most = row_characters_at_most * rows_at_most;

/// Prints a clue in its shown form below what the list (1 across, 2 down) holds, in as many rows as
/// it takes, with the icon of its medium beside the first. Returns the number of rows.
int PrintClue(int strana, const std::string& text, const std::string& media);

}  // namespace kalvon
