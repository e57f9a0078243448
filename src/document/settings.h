// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Reads folder, script and keyboard layout into the controls that hold them.
void ucitaj_ini();

/// Writes them back. The older file stays if the new one cannot be written.
void snimi_ini();

/// Reads what the user has chosen for himself in the menu, whatever the folder.
void ucitaj_izbor();

/// Keeps it, if that can be.
void snimi_izbor();

}  // namespace kalvon
