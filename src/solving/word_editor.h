// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

// The keys of the word editor. A place of the word that has no letter box is out of their reach.

/// A character typed into a letter box, by its code. One that is no letter, or a box past the end
/// of the word, changes nothing.
void unos_znaka(int index, int key_code);

/// A key pressed in a letter box, by the code of the key; it acts on the box of `rec_poz`.
void unos_tastera(int index, int key_code);

/// Solves the letter of the box that has the focus, and goes on to the next. What was typed into
/// the other boxes stays there.
void resi_slovo();

/// Takes back the letter that was typed last into the boxes. False if nothing was typed since they
/// were filled.
bool TakeBackTyped();

}  // namespace kalvon
