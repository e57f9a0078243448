// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

// The time spent on the crossword is measured while the main window is active, and kept in the
// journal, which hears of it at each whole minute. A kill loses less than a minute.

/// Measures from now on: the window has become active, or the journal has been opened while it is.
void nastavi_vreme();

/// The window is no longer active.
void zastani_vreme();

/// Counts the time up to now, and wakes up again at the next whole minute.
void meri_vreme();

/// Puts the rest into the journal: the crossword is left.
void upisi_vreme();

}  // namespace kalvon
