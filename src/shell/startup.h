// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// The start sequence, when the main form is loaded. A failure ends the program.
void pokreni();

/// The end sequence: closes the multimedia pane, writes the settings and ends the program, without
/// a question. Does not return.
[[noreturn]] void kraj();

/// Holds the main form to the size that it has at the end of the start sequence.
void HoldSize();

}  // namespace kalvon
