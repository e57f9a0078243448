// SPDX-License-Identifier: MIT
#include "solving/next_clue.h"

#include "crossword/cell.h"
#include "crossword/direction.h"
#include "crossword/words.h"
#include "document/crossword_state.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

/// Whether the word can be selected and has a cell that the user has not filled.
bool HasEmptyCell(const WordPlace& word) {
  if (!IsLetterCell(glavni.ukr_polja(word.first.x, word.first.y, 1))) return false;
  const bool across = word.direction == direction::across;
  const auto [first, last] = FindWord(glavni, word.first, word.direction);
  for (int place = first; place <= last; ++place) {
    const std::string& cell = across ? glavni.ukr_polja(place, word.first.y, 1)
                                     : glavni.ukr_polja(word.first.x, place, 1);
    if (IsLetterCell(cell) && UserLetter(cell).empty()) return true;
  }
  return false;
}

/// The word of a clue; without direction if the clue has none in that list.
WordPlace WordOfClue(int number, int strana) {
  if ((glavni.pitanja(number, 1) & strana) == 0) return {};
  return {{glavni.pitanja(number, 2), glavni.pitanja(number, 3)}, strana};
}

}  // namespace

void sledeca_prazna() {
  int strana = direction::across;
  if (glavni.sel_broj != 0) strana = glavni.smer;
  int number = glavni.sel_broj;
  for (int clues = 2 * glavni.broj_pitanja; clues > 0; --clues) {
    if (++number > glavni.broj_pitanja) {
      number = 1;
      strana = direction::Other(strana);
    }
    const WordPlace word = WordOfClue(number, strana);
    if (word.direction != 0 && HasEmptyCell(word)) return SelectWord(word);
  }
  glavni.vest = {.news = News::no_empty_cell};
}

}  // namespace kalvon
