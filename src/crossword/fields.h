// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace kalvon {

// What stands in the lines of a crossword file: fields between marks, numbers, blanks.

/// The text behind the first `count` marks; empty if there are fewer.
std::string_view Behind(std::string_view text, char mark, int count = 1);

/// The last characters of a text, all of it if it has no more.
std::string_view LastCharacters(std::string_view text, std::size_t count);

/// The text without the blanks around it.
std::string_view Trimmed(std::string_view text);

/// The whole number that a text begins with: blanks, a sign, digits. 0 for a text without one; a
/// number beyond 32 bits gives their limit.
int DecimalValue(std::string_view text);

}  // namespace kalvon
