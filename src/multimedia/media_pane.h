// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Shows the pane over the clue list of the word's direction, with the clue's text and the medium
/// `media_fajl` of the program's folder. `tip` is "bmp", "txt", "wav", "mid" or "avi"; for any
/// other the pane shows the text alone.
void prikazi_media(const std::string& tip);

/// Opens the device on the medium, ready to play from its start.
void otvori_media();

/// Closes the multimedia pane: stops playing, deletes the temporary file, and gives the focus back
/// to the first letter box.
void zatvori_media();

/// Stops playing; the device lets go of the file.
void zatvori_mci();

/// Deletes the temporary media file if there is one.
void obrisi_temp();

/// Lets pending events of the program run, n times.
void sacekaj(int n);

}  // namespace kalvon
