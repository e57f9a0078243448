// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace kalvon {

/// A letter of the Serbian alphabet in all its codes.
struct AlphabetLetter {
  char stored;            ///< Capital in the 7-bit YU ASCII code; Q, W, X for Lj, Nj, Dž.
  std::string_view keys;  ///< Characters that type it under YU ASCII, the small letter first.
  char latin;             ///< Capital in Windows-1250; the digraph letters keep their stored form.
  char latin_small;
  char cyrillic;  ///< Capital in Windows-1251.
  char cyrillic_small;
};

/// The 30 letters, in the order of the Cyrillic alphabet.
std::span<const AlphabetLetter> SerbianAlphabet();

/// The letter with this stored form, or null.
const AlphabetLetter* LetterOfStored(char stored);

/// The letter that the character types under YU ASCII, or null.
const AlphabetLetter* LetterOfAsciiKey(char key);

}  // namespace kalvon
