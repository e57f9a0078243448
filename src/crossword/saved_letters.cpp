// SPDX-License-Identifier: MIT
#include "crossword/saved_letters.h"

#include "crossword/installments.h"

namespace kalvon {

SavedLetters::SavedLetters(const Crossword& crossword)
    : cells_({{{0, crossword.ukr_sirina}, {0, crossword.ukr_visina}}}) {
  for (int installment = 1; installment <= crossword.nast_zadnji; ++installment)
    Written(crossword, installment);
}

void SavedLetters::Written(const Crossword& crossword, int installment) {
  CellWalk walk(crossword, installment);
  for (int cells = crossword.nast_sirina * crossword.nast_visina; cells > 0; --cells) {
    walk.Next();
    cells_.Mutable(walk.x(), walk.y()) = crossword.ukr_polja(walk.x(), walk.y(), 1);
  }
}

bool SavedLetters::HoldAll(const Crossword& crossword) const {
  for (int x = 1; x <= crossword.ukr_sirina; ++x)
    for (int y = 1; y <= crossword.ukr_visina; ++y)
      if (cells_(x, y) != crossword.ukr_polja(x, y, 1)) return false;
  return true;
}

}  // namespace kalvon
