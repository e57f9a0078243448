// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "crossword/cell.h"
#include "crossword/reading.h"
#include "crossword/writing.h"
#include "files/run_time_error.h"
#include "fuzz_folder.h"

/// Whether the cells of each installment come from its own file. A short one in a row can have got
/// those that its neighbour has too many, and does not write.
inline bool OwnCells(const kalvon::Crossword& crossword) {
  bool own = true;
  for (int i = 1; i <= crossword.nast_zadnji; ++i)
    own &= crossword.nast_polja(i) == crossword.nast_sirina * crossword.nast_visina;
  return own || crossword.nast_smer != kalvon::join::side_by_side;
}

/// Reads a crossword, puts letters into it, writes it, and reads it again as it was.
inline void ReadWriteRead(const std::string& path) {
  using namespace kalvon;
  files::pass_over([&] {
    Crossword crossword = ReadCrossword(path);
    for (int y = 1; y <= crossword.ukr_visina; ++y) {
      std::string& cell = crossword.ukr_polja.Mutable(crossword.ukr_sirina, y, 1);
      if (IsLetterCell(cell)) cell = WithUserLetter(cell, 'A');
    }
    const std::vector<InstallmentSave> saves = WriteCrossword(crossword);
    const auto written = [](const InstallmentSave& save) { return save.error == 0; };
    if (std::ranges::all_of(saves, written) && OwnCells(crossword))
      Require(ReadCrossword(path) == crossword);
  });
}
