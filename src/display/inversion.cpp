// SPDX-License-Identifier: MIT
#include "display/inversion.h"

namespace kalvon {

void Invert(toolkit::PictureBox& picture, int x1, int y1, int x2, int y2) {
  constexpr toolkit::Colour blue = 0x800000;
  picture.DrawMode(toolkit::DrawMode::exclusive_or);
  picture.FilledBox(x1, y1, x2, y2, blue);
  picture.DrawMode(toolkit::DrawMode::copy);
}

}  // namespace kalvon
