// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/input/picture_box.h"

namespace kalvon {

/// What the pictures are drawn in beside black and white.
struct Colours {
  toolkit::Colour block = 0xC0C0C0;  ///< Of blocked cells, and of what lies beyond the grid.
  toolkit::Colour ruler = 0xC0C0C0;  ///< Behind the numbers of rows and columns.
  /// What the exclusive-or pen marks with: white turns pale yellow and black dark blue.
  toolkit::Colour mark = 0x800000;
  /// What it draws dashes with inside a mark; 0 draws none.
  toolkit::Colour dashes = 0;
};

/// Those of the user's choice.
Colours ShownColours();

}  // namespace kalvon
