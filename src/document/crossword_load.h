// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"

namespace kalvon {

// A load, up to the moment from which the crossword is shown.

/// Opens the crossword that the dialog has chosen, by the path in `ukr_staza` and the files that
/// `File1` lists. Nothing changes in the record. Fails as OpenCrossword, and with error 5 if no
/// file is chosen.
Crossword OpenChosenCrossword();

/// Puts an opened crossword, which has no cells yet, in place of the one in the record, and forgets
/// what the procedures remember of that one.
void ReplaceCrossword(Crossword opened);

}  // namespace kalvon
