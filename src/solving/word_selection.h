// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/step.h"

namespace kalvon {

/// A click on the grid picture, in pixels from its top left corner: selects a word through the cell
/// that was hit, and closes the multimedia pane. A cell without a letter selects nothing, and the
/// word on record stays.
void klik_polje(double x, double y);

/// A click of the user on the grid picture. If he has chosen so, it selects the word of a cell in
/// which only one lies.
void klik_misem(double x, double y);

/// Moves the view to a cell that it doesn't show, in as few directions as needed. Each bar repaints
/// on its own, with the old word marked; the last painting leaves no mark. Whether the view moved.
bool BringIntoView(int x, int y);

/// A click on the middle of a cell of the grid that the view shows.
void ClickCell(int x, int y);

/// Selects the word of a direction that lies in a cell, by a click on the cell, after moving the
/// view there.
void SelectThrough(GridCell cell, int direction);

/// Selects a word by a click on its first cell, after moving the view there. A word without a
/// direction, or whose first cell has no letter, leaves the selection as it is.
void SelectWord(const WordPlace& word);

}  // namespace kalvon
