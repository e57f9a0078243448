// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Starts the progress bar of a load for the grid in the state. Error 6 for more than 16383 cells.
void StartProgress();

/// Moves the progress bar on by a column once enough steps have been counted.
void napredak();

/// Counts one step and moves the bar.
void ProgressStep();

}  // namespace kalvon
