// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QRectF>
#include <QString>
#include <vector>

#include "crossword/media_kinds.h"
#include "printing/printing.h"

namespace kalvon::printing {

// Pages as values: what stands where, in points from the upper left corner of the paper. Shades are
// 0 black to 1 white.

struct Box {
  QRectF place;
  double shade = 0;
};

struct Stroke {
  QLineF line;
  double width = 0;
  double shade = 0;
};

/// One line of text.
struct Text {
  QRectF place;  ///< From the ascent to the descent of the face.
  QString text;
  double size = 0;
  bool bold = false;
};

/// Says that a clue has a medium.
struct Sign {
  QRectF place;
  Medium medium{};
};

/// Drawn in this order.
struct Drawing {
  std::vector<Box> boxes;
  std::vector<Stroke> strokes;
  std::vector<Text> texts;
  std::vector<Sign> signs;
};

struct Page {
  Drawing upright;
  Drawing turned;  ///< Drawn with the page upside down.
};

struct Layout {
  Paper paper{};
  QString title;
  QString author;
  std::vector<Page> pages;
};

/// Lays a crossword out: on one page if the clues keep letters of 8 points, else on more.
Layout LayOut(const Sheet& sheet, const Paper& paper);

}  // namespace kalvon::printing
