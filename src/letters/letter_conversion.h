// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

/// How letters are shown and typed.
struct Writing {
  bool english = false;    ///< The language, which has no other script and layout.
  bool latin = true;       ///< Script: Latin or Cyrillic.
  bool code_page = false;  ///< Layout: characters of a code page, or the 7-bit YU ASCII code.
};

/// The letters that can be typed, in their stored form and in the order of the alphabet.
std::string_view azbuka(bool english);

// The result of each routine is empty where the input is used unchanged. Letters are stored in the
// 7-bit YU ASCII code, with Q, W, X for Lj, Nj, Dž.

/// Expands a digraph letter, in either case, for the Latin script.
std::string_view slovo_digraf(std::string_view letter, const Writing& writing);
/// Turns a stored letter into its code page form for a standard font.
std::string slovo_cirilica(std::string_view letter, const Writing& writing);
/// Turns a key or a small letter into the stored capital.
std::string_view slovo_veliko(std::string_view letter, const Writing& writing);

/// The shown form of a stored letter.
std::string ShownLetter(char stored, const Writing& writing);

/// The shown form of a clue in a list: all capitals.
std::string ShownClue(std::string_view text, const Writing& writing);

/// The running text of a multimedia clue, with its digraph letters expanded.
std::string ShownText(std::string_view text, const Writing& writing);

/// The stored letter that a typed character (its code in the code page of the layout) stands for; 0
/// for a character that is no letter.
char LetterOfKey(int key_code, const Writing& writing);

}  // namespace kalvon
