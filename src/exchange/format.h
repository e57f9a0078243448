// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "exchange/puzzle.h"
#include "exchange/remark.h"

namespace kalvon::exchange {

/// A format of other programs.
struct Format {
  std::string_view ending;  ///< Of its files' names, in small letters, without the dot.
  /// Whether bytes begin as a file of the format does.
  bool (*fits)(std::string_view bytes);
  /// ConversionError for a file that cannot be read.
  Puzzle (*read)(std::string_view bytes, Remarks& remarks);
  /// The bytes of a file.
  std::string (*write)(const Puzzle& puzzle, Remarks& remarks);
};

/// All formats, in the order in which a content is tried.
std::span<const Format> Formats();

/// The format of a content, null for none.
const Format* FormatOfContent(std::string_view bytes);

/// The format with an ending, null for none.
const Format* FormatOfEnding(std::string_view ending);

/// Files beyond this size are not read. Bytes.
inline constexpr std::size_t largest_file = std::size_t{32} << 20;

/// No cell has a longer text. Characters.
inline constexpr int longest_cell = 100;

}  // namespace kalvon::exchange
