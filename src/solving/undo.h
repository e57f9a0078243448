// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Whether something can be taken back, or made again.
bool CanUndo();
bool CanRedo();

/// Takes back the letter that was typed last into the boxes and, once none is left, the last step.
/// The word that was selected then is selected again.
void ponisti();

/// Makes the step again that was taken back last.
void ponovi();

}  // namespace kalvon
