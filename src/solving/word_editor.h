// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Puts in the place of a character, as the keyboard gave it, the one that it is taken for: Caps
/// Lock is undone, and a letter of the other script's keyboard is one of this script, if that is
/// chosen.
void primi_znak(char32_t& character, bool shift);

/// A character typed into a letter box, by its code. One that is no letter, or a box past the end
/// of the word, changes nothing but what the user is told.
void unos_znaka(int index, int key_code);

/// A key pressed in a letter box, by the code of the key; it acts on the letter of `rec_poz`.
void unos_tastera(int index, int key_code);

/// Solves the letter of the box that has the focus, and goes on to the next. What was typed into
/// the other boxes stays there.
void resi_slovo();

/// Goes to a place of the word, and brings its cell into view. What was typed stays in the boxes.
void stani_na(int place);

/// Takes back the letter that was typed last into the boxes. False if nothing was typed since they
/// were filled.
bool TakeBackTyped();

}  // namespace kalvon
