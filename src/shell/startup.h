// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// The start sequence, when the main form is loaded. A failure ends the program.
void pokreni();

/// The end sequence: closes the multimedia pane, writes the settings and ends the program, without
/// a question. Does not return.
[[noreturn]] void kraj();

/// The end that the desktop or a signal asks for: as that of `kraj`, but for the journal the
/// program is killed, so that unsaved letters come back with the next load.
[[noreturn]] void prekini();

/// Holds the main form to the size that it has at the end of the start sequence.
void HoldSize();

}  // namespace kalvon
