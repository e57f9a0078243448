// SPDX-License-Identifier: MIT
#include "support/bitmap_files.h"

#include <vector>

#include "support/bytes.h"

namespace kalvon::testing {

namespace {

constexpr unsigned palette[] = {0xFF0000, 0x0000FF, 0x00FF00, 0xFFFFFF};

int IndexAt(const BitmapKind& kind, int x, int y) { return (x + 2 * y) % (kind.bits == 1 ? 2 : 4); }

std::string Pixel(const BitmapKind& kind, unsigned colour) {
  const unsigned red = colour >> 16U;
  const unsigned green = (colour >> 8U) & 0xFFU;
  const unsigned blue = colour & 0xFFU;
  if (kind.bits != 16) return Number(colour, kind.bits / 8);
  return kind.packing == Packing::fields ? Low2((red >> 3 << 11) | (green >> 2 << 5) | (blue >> 3))
                                         : Low2((red >> 3 << 10) | (green >> 3 << 5) | (blue >> 3));
}

std::string PlainRow(const BitmapKind& kind, int y) {
  std::string row;
  for (int x = 0; x < kind.width; ++x) {
    const int index = IndexAt(kind, x, y);
    if (kind.bits > 8) {
      row += Pixel(kind, palette[index]);
      continue;
    }
    const int bit = x * kind.bits;
    if (bit % 8 == 0) row += '\0';
    row.back() = static_cast<char>(row.back() | (index << (8 - kind.bits - bit % 8)));
  }
  row.resize((row.size() + 3) / 4 * 4);
  return row;
}

/// The first two pixels as runs, the rest as they are.
std::string PackedRow(const BitmapKind& kind, int y) {
  const bool nibbles = kind.packing == Packing::rle4;
  std::string row;
  for (int x = 0; x < 2; ++x) row += '\x01' + Number(IndexAt(kind, x, y) << (nibbles ? 4 : 0), 1);
  std::string rest;
  for (int x = 2; x < kind.width; ++x) {
    const int index = IndexAt(kind, x, y);
    if (!nibbles || x % 2 == 0) rest += '\0';
    rest.back() = static_cast<char>(rest.back() | (index << (nibbles && x % 2 == 0 ? 4 : 0)));
  }
  rest.resize((rest.size() + 1) / 2 * 2);
  return row + '\0' + Number(kind.width - 2, 1) + rest + std::string(2, '\0');
}

std::string Head(const BitmapKind& kind, std::size_t size) {
  if (kind.os2) return Low4(12) + Low2(kind.width) + Low2(kind.height) + Low2(1) + Low2(kind.bits);
  return Low4(40) + Low4(kind.width) + Low4(kind.top_down ? -kind.height : kind.height) + Low2(1) +
         Low2(kind.bits) + Low4(static_cast<int>(kind.packing)) + Low4(size) +
         std::string(16, '\0');
}

std::string Colours(const BitmapKind& kind) {
  std::string colours;
  if (kind.packing == Packing::fields) return Low4(0xF800) + Low4(0x07E0) + Low4(0x001F);
  if (kind.bits > 8) return colours;
  const int size = kind.os2 ? 3 : 4;
  for (const unsigned colour : palette) colours += Number(colour, size);
  colours.resize(static_cast<std::size_t>(size) << kind.bits);
  return colours;
}

}  // namespace

std::string BitmapFile(const BitmapKind& kind) {
  const bool packed = kind.packing == Packing::rle8 || kind.packing == Packing::rle4;
  std::string pixels;
  for (int row = 0; row < kind.height; ++row) {
    const int y = kind.top_down ? row : kind.height - 1 - row;
    pixels += packed ? PackedRow(kind, y) : PlainRow(kind, y);
  }
  if (packed) pixels += Number(0x0100, 2);
  const std::string head = Head(kind, pixels.size()) + Colours(kind);
  const std::size_t pixels_at = 14 + head.size();
  return "BM" + Low4(pixels_at + pixels.size()) + Low4(0) + Low4(pixels_at) + head + pixels;
}

unsigned BitmapColour(const BitmapKind& kind, int x, int y) { return palette[IndexAt(kind, x, y)]; }

}  // namespace kalvon::testing
