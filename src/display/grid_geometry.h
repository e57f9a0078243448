// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace kalvon {

/// Pixels from one cell of the grid picture to the next; the last of them is the grid line.
inline constexpr int cell_pitch = 28;
/// Cells that the view shows in each direction.
inline constexpr int view_cells = 15;
/// Pixels of the view in each direction.
inline constexpr int view_size = view_cells * cell_pitch;

/// Whether a view that begins with the grid column or row `first` shows the given one.
constexpr bool InView(int column_or_row, int first) {
  return column_or_row >= first && column_or_row < first + view_cells;
}

/// The first column or row of a view that begins with the wanted one in a grid of `all` of them, as
/// far as the grid allows.
constexpr int FirstShown(int wanted, int all) {
  return std::max(1, std::min(wanted, all - view_cells + 1));
}

/// Half of a length in any unit, rounded down also below zero.
constexpr int HalfDown(int length) { return (length - (length & 1)) / 2; }

}  // namespace kalvon
