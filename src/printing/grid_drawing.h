// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>

#include "printing/layout.h"

namespace kalvon::printing {

/// A part of a grid, counted from 1.
struct GridPart {
  int column = 0;
  int row = 0;
  int columns = 0;
  int rows = 0;
};

enum class Letters { none, users, solution };

/// How a grid is drawn. Lengths are points.
struct GridLook {
  double cell = 0;      ///< Side of a cell.
  Letters letters{};    ///< In the cells.
  bool numbers = true;  ///< Of the clues.
  bool rulers = false;  ///< Numbers of the columns above, and of the rows to the left.
};

/// What the numbers of columns and rows take.
inline constexpr double ruler = 16;

/// The size of a part with its rulers.
QSizeF SizeOf(const GridPart& part, const GridLook& look);

/// Draws a part of the grid with its upper left corner at a point.
void DrawGrid(const Sheet& sheet, const GridPart& part, const GridLook& look, QPointF at,
              Drawing& drawing);

}  // namespace kalvon::printing
