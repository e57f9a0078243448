// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Opens the dialog over the main form: 0 to load, 1 to save.
void otvori_dijalog(int mode);

/// Closes the dialog and gives the input back to the main form.
void zatvori_dijalog();

/// A button of the dialog: 0 go on, 1 cancel.
void dijalog_komanda(int index);

/// A list of the dialog has changed: 0 drives, 1 folders, 2 files.
void dijalog_navigacija(int list);

/// Describes the chosen file by the head of it.
void opis_fajla();

/// Reads the folder of the dialog anew, and shows what is there now. The chosen file stays chosen
/// as long as it is there.
void RereadFolder();

/// Loads a crossword by its path, with its neighbours, as if it were chosen in the dialog, which
/// then stands in its folder.
void ucitaj_iz(const std::string& path);

}  // namespace kalvon
