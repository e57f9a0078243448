// SPDX-License-Identifier: MIT
#include "solving/cell_movement.h"

#include <algorithm>

#include "crossword/direction.h"
#include "crossword/words.h"
#include "display/selected_word.h"
#include "document/crossword_state.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

GridCell CurrentCell() {
  const auto place = static_cast<std::size_t>(glavni.rec_poz);
  return place < glavni.rec_polja.size() ? glavni.rec_polja[place] : ClickedCell();
}

/// Goes to a cell of the word in the editor; false if it has no such cell.
bool GoWithinWord(GridCell cell) {
  const auto found = std::ranges::find(glavni.rec_polja, cell);
  if (found == glavni.rec_polja.end()) return false;
  stani_na(static_cast<int>(found - glavni.rec_polja.begin()));
  return true;
}

/// Selects the word of a direction that lies in a cell; false if there is none.
bool GoToWord(GridCell cell, int direction) {
  if (!LiesInWord(glavni, cell, direction)) return false;
  SelectThrough(cell, direction);
  GoWithinWord(cell);
  return true;
}

bool InGrid(GridCell cell) {
  return cell.x >= 1 && cell.x <= glavni.ukr_sirina && cell.y >= 1 && cell.y <= glavni.ukr_visina;
}

}  // namespace

void pomeri_polje(int columns, int rows) {
  GridCell cell = CurrentCell();
  const auto go = [&] { cell = {cell.x + columns, cell.y + rows}; };
  for (go(); InGrid(cell); go()) {
    if (GoWithinWord(cell) || GoToWord(cell, glavni.smer) ||
        GoToWord(cell, direction::Other(glavni.smer)))
      return;
  }
}

void okreni_smer() {
  const GridCell cell = CurrentCell();
  if (!InGrid(cell) || !GoToWord(cell, direction::Other(glavni.smer)))
    glavni.vest = {.news = News::no_crossing_word};
}

}  // namespace kalvon
