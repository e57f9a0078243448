// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

// Serbian letters in Unicode, as other programs hold them. All texts are UTF-8.

/// The letter that a text begins with, in its stored form and its case, taken off the text: one
/// letter of either script, or two Latin ones for a digraph. 0, with nothing taken off, for any
/// other beginning.
char TakeLetter(std::string_view& text);

/// A text in its stored form. Only letters are converted; all else is copied. Two Latin letters are
/// a digraph but where words are known to hold both (as in "konjunktura") or a zero-width
/// non-joiner parts them.
std::string StoredText(std::string_view text);

/// A stored text in letters of a script. In Latin script a zero-width non-joiner parts two letters
/// that would be read as a digraph.
std::string UnicodeText(std::string_view stored, bool latin);

/// A text of either script in letters of one. All but letters is copied.
std::string TextIn(std::string_view text, bool latin);

/// A stored capital as it stands in the cell of a grid: a digraph in two capitals.
std::string UnicodeCapital(char stored, bool latin);

}  // namespace kalvon
