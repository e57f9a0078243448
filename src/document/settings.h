// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Reads folder, script and keyboard layout into the controls that hold them.
void ucitaj_ini();

/// Writes them back. The older file stays if the new one cannot be written.
void snimi_ini();

}  // namespace kalvon
