// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

// From the cell of the letter box that has the keys, or of an empty selection the clicked one.

/// Goes by `columns` and `rows` to the next cell in which a word lies, over all others. Behind the
/// end of the word this selects another one, if that can be of the same direction. At the edge of
/// the grid it stays.
void pomeri_polje(int columns, int rows);

/// Selects the other word that lies in the cell.
void okreni_smer();

}  // namespace kalvon
