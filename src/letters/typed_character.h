// SPDX-License-Identifier: MIT
#pragma once

#include "letters/letter_conversion.h"

namespace kalvon {

// Characters as a keyboard gives them, before they become codes of a code page.

/// The same letter as the keyboard of the chosen script gives it, in the same case: ž for ж, and q
/// for љ and for the single character ǉ. Any other character is given back.
char32_t SameLetter(char32_t character, const Writing& writing);

/// The letter that the key gives with the same state of Shift while Caps Lock is off. A capital
/// without Shift and a small letter with it tell that it is on.
char32_t WithoutCapsLock(char32_t character, bool shift);

/// Why a character types no letter.
enum class Refusal {
  other_keyboard,  ///< Only the keyboard of the other script gives it.
  capital,         ///< The layout takes small letters alone.
  other_layout,    ///< It is a letter under YU ASCII.
  no_letter,
  past_the_word,  ///< The box shows no letter of the word.
};

/// Why a character that was not taken is refused. `all_keyboards` tells whether SameLetter was
/// asked.
Refusal WhyRefused(char32_t character, const Writing& writing, bool all_keyboards);

}  // namespace kalvon
