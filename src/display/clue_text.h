// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace kalvon {

/// A clue as an attribute line holds it.
struct Clue {
  std::string_view media;  ///< Media name of a multimedia clue, empty for a plain one.
  std::string_view text;   ///< In the stored form of letters.
};

/// Reads the clue of a direction (1 across, 2 down) from an attribute line, which must outlive it.
/// A clue that is not closed goes as far as the line; a "/" without its match is part of the text.
Clue ReadClue(std::string_view attributes, int direction);

/// The text without the blanks around it.
std::string_view Trimmed(std::string_view text);

}  // namespace kalvon
