// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/remark.h"

namespace kalvon::exchange {

/// The parts of a puz file, in the bytes that stand there.
struct PuzFile {
  std::string version = "1.3";
  int width = 0;
  int height = 0;
  std::uint16_t kind = plain;
  std::uint16_t lock = unlocked;
  std::string solution = {};            ///< A byte a cell, row by row.
  std::string state = {};               ///< What the user has written, likewise.
  std::vector<std::string> texts = {};  ///< Title, author, copyright, the clues, the note.
  std::map<std::string, std::string> sections = {};  ///< What follows, by its name of four letters.

  static constexpr std::uint16_t plain = 0x0001;
  static constexpr std::uint16_t diagramless = 0x0401;
  static constexpr std::uint16_t unlocked = 0x0000;
  static constexpr std::uint16_t without_solution = 0x0002;
  static constexpr std::size_t texts_before_clues = 3;

  [[nodiscard]] std::size_t Cells() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }
  /// From version 2 on texts are UTF-8.
  [[nodiscard]] bool IsUnicode() const { return !version.empty() && version[0] >= '2'; }
};

/// Takes a file apart. Remarks for a wrong checksum, and for a section that does not fit. Error
/// `ends_early` for a file that lacks cells or clues, `unknown_format` for one without the mark,
/// `too_long` for a text of more than 1 MiB.
PuzFile ParsePuz(std::string_view bytes, Remarks& remarks);

/// The bytes of a file, with its checksums. Precondition: sides up to 255, sections up to 65535
/// bytes.
std::string AssemblePuz(const PuzFile& file);

}  // namespace kalvon::exchange
