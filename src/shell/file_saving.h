// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "printing/printing.h"

namespace kalvon {

/// Lets the user choose a name in the desktop's own dialog, and writes the crossword there.
void sacuvaj_kao();

/// Writes the crossword with the user's letters to a file, by its path of the host: in the format
/// that the ending of its name tells, PDF and SVG among them. The loaded files stay what they are.
void sacuvaj_u(const std::string& path);

/// Shows the crossword as it would be printed, and prints it.
void stampaj(printing::Contents contents);

}  // namespace kalvon
