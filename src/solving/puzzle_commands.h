// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Solves the selected word.
void resi_rec();

/// Erases the user's letters of the selected word.
void brisi_rec();

enum class PuzzleOperation { erase_all, solve_all, count_wrong, erase_wrong };

/// Applies an operation to the whole puzzle; `count_wrong` shows the number of wrong letters.
void operacija_celine(PuzzleOperation operation);

}  // namespace kalvon
