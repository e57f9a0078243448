// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Solves the selected word.
void resi_rec();

/// Erases the user's letters of the selected word.
void brisi_rec();

/// An operation on the whole puzzle.
enum class PuzzleOperation { erase_all = 0, solve_all = 1, count_wrong = 2, erase_wrong = 3 };

void operacija_celine(PuzzleOperation operation);

}  // namespace kalvon
