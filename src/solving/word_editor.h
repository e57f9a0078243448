// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

// The keys of the word editor. A place of the word that has no letter box is out of their reach.

/// A character typed into a letter box, by its code. One that is no letter, or a box past the end
/// of the word, changes nothing.
void unos_znaka(int index, int key_code);

/// A key pressed in a letter box, by the code of the key; it acts on the box of `rec_poz`.
void unos_tastera(int index, int key_code);

}  // namespace kalvon
