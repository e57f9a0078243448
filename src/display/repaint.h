// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Draws the grid, the clue lists and the marks on them anew from the record, and changes nothing
/// else: the letters in the boxes stay.
void iscrtaj_sve();

}  // namespace kalvon
