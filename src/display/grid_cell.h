// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Draws the grid cell that the view shows in view cell (i, j), each from 1 to 15: block or marks,
/// the user's letter, the clue number. A part that fails leaves the others to be drawn.
void DrawCell(int i, int j);

}  // namespace kalvon
