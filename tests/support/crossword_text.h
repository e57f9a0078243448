// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kalvon::testing {

/// A crossword file in the making. A word has two letters or more.
struct CrosswordText {
  /// Solution letters of each row, from the top; '#' is a gray block, '.' an empty cell.
  std::vector<std::string> rows = {};
  /// The user's letters in the same places; a blank or a missing place is none.
  std::vector<std::string> letters = {};
  /// Marks of the lines 6 to 9: across, down, across, down.
  std::array<int, 4> marks = {};
  /// Clues by their names: "A1" across, "D1" down from the first cell, row by row, that starts a
  /// word. Others say their names.
  std::map<std::string, std::string> clues = {};
  std::string media_table = {};
};

/// The bytes of its `.qvm` file.
std::string Qvm(const CrosswordText& text);
std::string Qvm(const std::vector<std::string>& rows);

/// Joins lines, each closed by CR LF.
std::string Lines(const std::vector<std::string>& lines);

/// A header of nine lines that gives a size; the marks are those of the lines 6 to 9.
std::vector<std::string> HeaderLines(int width, int height, const std::array<int, 4>& marks = {});

}  // namespace kalvon::testing
