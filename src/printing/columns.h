// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <vector>

#include "printing/clue_flow.h"

namespace kalvon::printing {

// Lengths are points.

/// Columns of clues in a part of a page, all of one width.
struct Columns {
  QRectF body;
  int count = 0;

  /// Of some columns side by side, with the gaps between them.
  [[nodiscard]] double Width(int columns = 1) const;
  /// The fewest columns, at most all, that are together so wide.
  [[nodiscard]] int Spanned(double width) const;
};

/// What is taken from columns on the right: at their top by the grid, at their bottom by the
/// solution.
struct Taken {
  int columns = 0;
  double height = 0;
};

/// The columns as frames from left to right.
std::vector<QRectF> Frames(const Columns& columns, Taken top, Taken bottom);

/// Whether the rest of the clues fits beside what is taken, and this fits on the page.
bool Fits(const ClueFlow& flow, FlowPlace from, const Columns& columns, Taken top, Taken bottom);

/// The frames cut off at the height at which the rest of the clues, which fits, ends in all of them
/// alike.
std::vector<QRectF> Balanced(const ClueFlow& flow, FlowPlace from, std::vector<QRectF> frames);

}  // namespace kalvon::printing
