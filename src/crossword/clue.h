// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "files/text_file.h"

namespace kalvon {

// An attribute line: which words start in a cell, and their clues.

/// Reads the attribute line of a cell from its file, where a ";" stands for a ",". That of the last
/// cell, mostly empty and so easily lost, may be missing at the end of the file.
std::string ReadAttributes(files::TextReader& file, bool last_cell);

/// Whether a word of the direction starts in the cell of the attribute line.
bool StartsWord(std::string_view attributes, int direction);

/// The sum of the directions of the words that start there, 0 for none.
int KindOf(std::string_view attributes);

/// A clue as an attribute line holds it.
struct Clue {
  std::string_view media;  ///< Media name of a multimedia clue, empty for a plain one.
  std::string_view text;   ///< In the stored form of letters.
};

/// Reads the clue of a direction from an attribute line, which must outlive it. A clue that is not
/// closed goes as far as the line; a "/" without its match is part of the text.
Clue ReadClue(std::string_view attributes, int direction);

}  // namespace kalvon
