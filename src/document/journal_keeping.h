// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Opens the journal of the crossword that has just been read: letters that a killed program left
/// come back.
void otvori_dnevnik();

/// The user leaves the crossword: what is not saved waits in its journal.
void zatvori_dnevnik();

/// Removes the journals of crosswords that nobody has opened for a year.
void pocisti_dnevnike();

}  // namespace kalvon
