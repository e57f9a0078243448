// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Gives the strip its menu of all commands, in the script of the options.
void ShowStripMenu();

/// Shows in the strip, and by the mark in the window's title, what is so after an event.
void UpdateStrip();

}  // namespace kalvon
