// SPDX-License-Identifier: MIT
#include "document/crossword_numbering.h"

#include "display/grid_geometry.h"
#include "document/crossword_state.h"
#include "document/installments.h"
#include "document/load_progress.h"

namespace kalvon {
namespace {

constexpr int no_clue = 250000;

// The kind of a clue is the sum of its directions.
constexpr int across = 1;
constexpr int down = 2;

void Count(int kind, ClueCounts& counts) {
  if ((kind & across) != 0) ++counts.across;
  if ((kind & down) != 0) ++counts.down;
}

void NumberCell(int x, int y, ClueCounts& counts) {
  const std::string& attributes = glavni.ukr_polja(x, y, 2);
  const int kind =
      (StartsWord(attributes, 1) ? across : 0) + (StartsWord(attributes, 2) ? down : 0);
  if (kind == 0) return;
  const int number = ++glavni.broj_pitanja;
  glavni.rec_broj.Mutable(x, y) = number;
  glavni.pitanja.Mutable(number, 1) = kind;
  glavni.pitanja.Mutable(number, 2) = x;
  glavni.pitanja.Mutable(number, 3) = y;
  Count(kind, counts);
}

}  // namespace

ClueCounts NumberClues(int joined) {
  const bool by_columns = joined == join::side_by_side;
  const int outer_end = by_columns ? glavni.ukr_sirina : glavni.ukr_visina;
  const int inner_end = by_columns ? glavni.ukr_visina : glavni.ukr_sirina;
  ClueCounts counts;
  glavni.broj_pitanja = 0;
  for (int outer = 1; outer <= outer_end; ++outer) {
    for (int inner = 1; inner <= inner_end; ++inner) {
      ProgressStep();
      NumberCell(by_columns ? outer : inner, by_columns ? inner : outer, counts);
    }
  }
  return counts;
}

FirstClue FindFirstClue() {
  FirstClue first{.number = no_clue, .x = 1, .y = 1};
  for (int y = glavni.pogled_y; y < glavni.pogled_y + view_cells && y <= glavni.ukr_visina; ++y) {
    for (int x = glavni.pogled_x; x < glavni.pogled_x + view_cells && x <= glavni.ukr_sirina; ++x) {
      const int number = glavni.rec_broj(x, y);
      if (number != 0 && number < first.number) first = {number, x, y};
    }
  }
  return first;
}

ClueCounts PlaceOfClue(int number) {
  ClueCounts place;
  int kind = 0;
  for (int n = 1; n <= number; ++n) {
    kind = glavni.pitanja(n, 1);
    Count(kind, place);
  }
  if (kind == across) ++place.down;
  if (kind == down) ++place.across;
  return place;
}

}  // namespace kalvon
