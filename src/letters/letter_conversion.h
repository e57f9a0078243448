// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

// Each routine clears `znak` and leaves its result there; an empty result means that the input is
// used unchanged. Letters are stored in the 7-bit YU ASCII code, with Q, W, X for Lj, Nj, Dž.

/// Expands a digraph letter, in either case, for the Latin script.
void slovo_digraf(std::string_view letter);
/// Turns a stored letter into its code page form for a standard font.
void slovo_cirilica(std::string_view letter);
/// Turns a key or a small letter into the stored capital.
void slovo_veliko(std::string_view letter);

/// Converts the text of the row that was just added to a clue list (1 across, 2 down).
void konvertuj_pitanje(int strana);

/// The shown form of a stored letter, in the script and code layout of the options.
std::string ShownLetter(char stored);

/// The running text of a multimedia clue, with its digraph letters expanded.
std::string ShownText(std::string_view text);

/// A typed letter: its stored form, and its shown form for the letter box.
struct TypedLetter {
  char stored = 0;
  std::string shown;
};

/// What a typed character (its code in the code page of the layout) stands for; `stored` is 0 for a
/// character that is no letter.
TypedLetter LetterOfKey(int key_code);

}  // namespace kalvon
