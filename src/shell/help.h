// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Opens the Serbian manual in the web browser.
void OpenManual();

/// Lays the help panel over the grid. For the English program.
void otvori_pomoc();

/// Hides the help panel.
void zatvori_pomoc();

}  // namespace kalvon
