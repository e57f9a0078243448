// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "files/text_file.h"

namespace kalvon {

/// The nine lines before the cells of a crossword file.
using Header = std::array<std::string, 9>;

/// Reads the header from the start of a file. Error 62 if the file has fewer lines.
Header ReadHeader(files::TextReader& file);

/// What a header says of its grid.
struct Dimensions {
  int width = 0;   ///< Columns; 0 if it names none.
  int height = 0;  ///< Rows.
};
Dimensions DimensionsOf(const Header& header);

/// What the marks of a header say, one of `join`.
int JoinOf(const Header& header);

}  // namespace kalvon
