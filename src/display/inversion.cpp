// SPDX-License-Identifier: MIT
#include "display/inversion.h"

#include <algorithm>

#include "display/colours.h"

namespace kalvon {

namespace {

/// Dashes along the lower edges of a rectangle, where neither clue numbers nor letters stand: who
/// does not see the colour of a mark sees them.
void DrawDashes(toolkit::PictureBox& picture, int x1, int y1, int x2, int y2,
                toolkit::Colour colour) {
  constexpr int thickness = 3;  // Pixels, as are the next three.
  constexpr int dash = 4;
  constexpr int pitch = 6;
  constexpr int below_number = 12;
  const int bottom = y2 - thickness + 1;
  for (int x = x1; x <= x2; x += pitch)
    picture.FilledBox(x, bottom, std::min(x + dash - 1, x2), y2, colour);
  for (int y = y1 + below_number; y < bottom - 1; y += pitch) {
    const int end = std::min(y + dash, bottom) - 1;
    picture.FilledBox(x1, y, x1 + thickness - 1, end, colour);
    picture.FilledBox(x2 - thickness + 1, y, x2, end, colour);
  }
}

}  // namespace

void Invert(toolkit::PictureBox& picture, int x1, int y1, int x2, int y2) {
  const Colours colours = ShownColours();
  picture.DrawMode(toolkit::DrawMode::exclusive_or);
  picture.FilledBox(x1, y1, x2, y2, colours.mark);
  if (colours.dashes != 0) DrawDashes(picture, x1, y1, x2, y2, colours.dashes);
  picture.DrawMode(toolkit::DrawMode::copy);
}

}  // namespace kalvon
