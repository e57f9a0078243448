// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "crossword/step.h"

namespace kalvon {

/// The cell of the grid that was clicked in the view.
GridCell ClickedCell();

/// Turns the direction, unless a clue was just clicked, and finds the word through the clicked cell
/// of the view. Without a word start before the cell the selection comes out empty.
void nadji_rec();

/// Where the selected word stands.
WordPlace SelectedWord();

/// The cells of the selected word from first to last; none for an empty selection.
std::vector<GridCell> SelectedCells();

}  // namespace kalvon
