// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Opens a page of the Serbian manual in the web browser.
void OpenManual(const std::string& page = "pocetak.htm");

/// Shows which keys do what: a page of the manual, or the help panel of the English program.
void ShowKeys();

/// Lays the help panel over the grid. For the English program.
void otvori_pomoc();

/// Hides the help panel.
void zatvori_pomoc();

}  // namespace kalvon
