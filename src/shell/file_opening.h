// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Lets the user choose a crossword of any format in the desktop's own dialog, and opens it.
void otvori();

/// Opens a file, by its path of the host. A crossword of this program is loaded with its
/// neighbours, as the load dialog would do. One of another program is made into one of this, in the
/// user's folder, and loaded; where its like lies there from an earlier time, that one is loaded,
/// with the letters it has. A crossword of the other language goes to the other program.
void otvori_fajl(const std::string& path);

}  // namespace kalvon
