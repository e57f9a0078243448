// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Reads the list of the crosswords that were opened last into the record.
void ucitaj_nedavne();

/// Puts a file in front, by its path of the host; of more than ten the oldest goes. What another
/// program has opened meanwhile stays.
void dodaj_nedavnu(const std::string& path);

}  // namespace kalvon
