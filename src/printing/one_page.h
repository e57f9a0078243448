// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <functional>
#include <optional>
#include <span>

#include "printing/columns.h"

namespace kalvon::printing {

// Lengths are points.

inline constexpr double points_per_millimetre = 72 / 25.4;
inline constexpr double smallest_cell = 5 * points_per_millimetre;
inline constexpr double largest_cell = 9 * points_per_millimetre;
/// Between the grid and the clues below it.
inline constexpr double below_grid = 12;

/// A page that holds the grid, in the upper right corner, and all clues.
struct OnePage {
  Columns columns;
  int spanned = 0;     ///< Columns that the grid takes.
  double letters = 0;  ///< Size of the clues' letters, 8 to 11.
  double cell = 0;
};

/// Cells and columns with which a grid fits into a place; it may be smaller than the columns.
double LargestCell(QSize grid, QSizeF place);

/// The best page of all on which the clues fit: the cells and the letters are as large as both can
/// be. `solution` tells what the solution takes from columns.
std::optional<OnePage> BestPage(std::span<const Entry> entries, QSize grid, const QRectF& body,
                                const std::function<Taken(const Columns&)>& solution);

}  // namespace kalvon::printing
