// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "crossword/table.h"

namespace kalvon {

/// A cell of the grid, counted from 1.
struct GridCell {
  int x = 0;
  int y = 0;

  bool operator==(const GridCell&) const = default;
  /// Row by row.
  bool operator<(const GridCell& other) const { return y != other.y ? y < other.y : x < other.x; }
};

/// How installments are joined into one grid, in the numbers of `nast_smer`.
namespace join {
inline constexpr int none = 0;
inline constexpr int side_by_side = 1;
inline constexpr int one_under_the_other = 2;
}  // namespace join

/// A crossword: a plain value that can be read, changed, compared, copied and written. Grid
/// coordinates count from 1, x from the left and y from the top, over the whole joined crossword.
struct Crossword {
  // Grid and clue numbers.
  Table<std::string, 3> ukr_polja;  ///< (x, y, 1) cell string, (x, y, 2) attribute line.
  Int16 ukr_sirina, ukr_visina;     ///< Columns and rows.
  Table<std::int32_t, 2> rec_broj;  ///< (x, y) clue number, 0 for a cell that starts no word.
  Table<std::int32_t, 2> pitanja;   ///< (n, 1) kind: 1 across, 2 down, 3 both; (n, 2) x; (n, 3) y.
  std::int32_t broj_pitanja = 0;    ///< The highest clue number.
  std::int32_t br_vodoravnih = 0, br_uspravnih = 0, br_crnih = 0;  ///< Words and blocked cells.

  // Installments.
  Int16 nast_cifre;                ///< Digits that end the chosen name; 3 says it is numbered.
  std::string ukr_osnova;          ///< That name without extension and number.
  Int16 nast_sirina, nast_visina;  ///< Columns and rows of one installment.
  Int16 nast_tekuci, nast_zadnji;  ///< Number of the chosen one, and the highest in the folder.
  Int16 nast_smer;                 ///< How they are joined, one of `join`.
  /// (1..nast_zadnji) path of its file, with the name that the disk has; empty if it is missing.
  Table<std::string, 1> nast_staza;
  /// (1..nast_zadnji) its own number, or -1 if it is missing. Without bounds until the crossword
  /// has been read and numbered to the end: only then can it be written.
  Table<Int16, 1> nast_ucitan;
  Table<std::int32_t, 1> nast_polja;    ///< (1..nast_zadnji) cells that its file held.
  Table<std::string, 1> media_sadrzaj;  ///< (1..nast_zadnji) table of its media pack.

  bool operator==(const Crossword&) const = default;
};

}  // namespace kalvon
