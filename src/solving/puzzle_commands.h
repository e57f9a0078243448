// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Solves the selected word.
void resi_rec();

/// Erases the user's letters of the selected word.
void brisi_rec();

/// Whole-puzzle operation: 0 erase all, 1 solve all, 2 count wrong letters, 3 erase wrong letters.
void operacija_celine(int operation);

}  // namespace kalvon
