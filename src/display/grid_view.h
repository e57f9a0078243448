// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Paints the view of 15 by 15 cells and its rulers from the state, without the word's mark. Goes
/// on after every failure.
void crtaj_ukrstenicu();

/// Paints the rulers.
void crtaj_brojeve();

}  // namespace kalvon
