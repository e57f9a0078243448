// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace kalvon {

/// Whether something can be taken back, or made again.
bool CanUndo();
bool CanRedo();

/// Takes back the letter that was typed last into the boxes and, once none is left, the last step.
/// The word that was selected then is selected again.
void ponisti();

/// Makes the step again that was taken back last.
void ponovi();

/// Steps that waited from an earlier time when others were made, 0 for none.
std::size_t EarlierSteps();

/// Lays them over the crossword, as one step.
void vrati_raniji_rad();

}  // namespace kalvon
