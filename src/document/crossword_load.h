// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Loads the file that the dialog has chosen: joins its installments into one grid, numbers the
/// clues, draws grid and lists and selects the first clue. Expects the path in `ukr_staza`, the
/// name in `txt_ucit` and the folder's files in `File1`. A failure ends the load without a word,
/// with what it has so far; the crossword in the grid stays if it has not been replaced yet.
void ucitaj_ukrstenicu();

}  // namespace kalvon
