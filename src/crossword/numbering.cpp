// SPDX-License-Identifier: MIT
#include "crossword/numbering.h"

#include <utility>

#include "crossword/clue.h"
#include "crossword/direction.h"

namespace kalvon {
namespace {

void Count(int kind, ClueCounts& counts) {
  if (BelongsTo(kind, direction::across)) ++counts.across;
  if (BelongsTo(kind, direction::down)) ++counts.down;
}

void NumberCell(Crossword& crossword, int x, int y, ClueCounts& counts) {
  const int kind = KindOf(crossword.ukr_polja(x, y, 2));
  if (kind == 0) return;
  const int number = ++crossword.broj_pitanja;
  crossword.rec_broj.Mutable(x, y) = number;
  crossword.pitanja.Mutable(number, 1) = kind;
  crossword.pitanja.Mutable(number, 2) = x;
  crossword.pitanja.Mutable(number, 3) = y;
  Count(kind, counts);
}

}  // namespace

ClueCounts NumberClues(Crossword& crossword, const Progress& progress) {
  const bool by_columns = crossword.nast_smer == join::side_by_side;
  const int outer_end = by_columns ? crossword.ukr_sirina : crossword.ukr_visina;
  const int inner_end = by_columns ? crossword.ukr_visina : crossword.ukr_sirina;
  auto read = std::exchange(crossword.nast_ucitan, {});
  ClueCounts counts;
  crossword.broj_pitanja = 0;
  for (int outer = 1; outer <= outer_end; ++outer) {
    for (int inner = 1; inner <= inner_end; ++inner) {
      progress();
      NumberCell(crossword, by_columns ? outer : inner, by_columns ? inner : outer, counts);
    }
  }
  if (crossword.broj_pitanja > 0) crossword.nast_ucitan = std::move(read);
  return counts;
}

ClueCounts PlaceOfClue(const Crossword& crossword, int number) {
  ClueCounts place;
  int kind = 0;
  for (int n = 1; n <= number; ++n) {
    kind = crossword.pitanja(n, 1);
    Count(kind, place);
  }
  if (kind == direction::across) ++place.down;
  if (kind == direction::down) ++place.across;
  return place;
}

int ClueAtPlace(const Crossword& crossword, int place, int direction) {
  for (int n = 1; n <= crossword.broj_pitanja; ++n)
    if (BelongsTo(crossword.pitanja(n, 1), direction) && --place == 0) return n;
  return 0;
}

}  // namespace kalvon
