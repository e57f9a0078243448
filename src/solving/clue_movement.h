// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

// The list is that of the selected clue or, if none is selected, of the direction in force.

/// Clicks the next clue of the list, or the one before.
void sledece_pitanje();
void prethodno_pitanje();

/// Clicks, in the other list, the clue of the same number or the next one, else the last.
void drugi_spisak();

/// Turns to the page that goes on behind the clues that are seen whole, or to the one that ends
/// with the clue before them.
void sledeca_strana();
void prethodna_strana();

/// Whether the selected clue has a medium.
bool HasMedium();

/// Opens it.
void otvori_pitanje();

}  // namespace kalvon
