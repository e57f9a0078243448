// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace kalvon {

/// Zooms before the forms are made: as the command line says, in percent; else as at the last end;
/// else as well as the screen is filled.
void ChooseZoom(std::optional<int> percent);

/// Puts the main window where it was at the last end, unless the command line has named a zoom.
void RestoreWindow();
/// Remembers the zoom and the place of the main window.
void SaveWindow();

/// To the next step of the zoom, or back to 100 %.
void uvecaj();
void umanji();
void prirodna_velicina();

/// The main window fills the screen, or does so no longer.
void ceo_ekran();

/// Shows the zoom in the strip, with a menu of its steps.
void ShowZoom();

}  // namespace kalvon
