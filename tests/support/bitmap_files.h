// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon::testing {

enum class Packing { none = 0, rle8 = 1, rle4 = 2, fields = 3 };

/// What a bitmap file made for a test is like.
struct BitmapKind {
  int bits = 24;
  Packing packing = Packing::none;
  bool top_down = false;
  bool os2 = false;
  int width = 5;
  int height = 3;
};

/// A bitmap whose pixels are BitmapColour.
std::string BitmapFile(const BitmapKind& kind);

/// 0xRRGGBB of a pixel counted from the top left: red or blue if there are two colours, else red,
/// blue, green or white.
unsigned BitmapColour(const BitmapKind& kind, int x, int y);

}  // namespace kalvon::testing
