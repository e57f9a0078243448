// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Copies the crosswords of a folder, with their installments and packs, into another one. What
/// lies there is not touched: the same crossword, solved or not, is not copied again, and another
/// one of the same name gets the new one beside it, as "proba-2" or, with installments, "zima2".
/// Both are paths of the logic. Error 76 for a folder that is missing, and those of files that
/// cannot be read or written; a crossword is copied whole or not at all.
void CopySamples(const std::string& from, const std::string& into);

}  // namespace kalvon
