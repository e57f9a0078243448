// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/input/picture_box.h"

namespace kalvon {

/// Marks a rectangle of a picture, both corners included. The same call again gives the picture
/// back, unless the user has chosen other colours in between.
void Invert(toolkit::PictureBox& picture, int x1, int y1, int x2, int y2);

}  // namespace kalvon
