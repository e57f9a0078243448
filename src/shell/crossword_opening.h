// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Loads the crossword that the dialog has chosen and opens it on the screen: joins its
/// installments into one grid, numbers the clues, draws grid and lists and selects the first clue.
/// A load that gives up before the grid is replaced changes nothing; one that gives up later keeps
/// what it has so far, with no word selected. Neither says a word.
void ucitaj_ukrstenicu();

}  // namespace kalvon
