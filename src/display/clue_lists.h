// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Prints the pages of the lists named by `lista_strana`, from the clue at the cell (x, y) on.
void crtaj_pitanja(int x, int y);

/// Brings the page of list k (0 across, 1 down) in line with its bar.
void skrol_pitanja(int k);

}  // namespace kalvon
