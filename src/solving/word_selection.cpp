// SPDX-License-Identifier: MIT
#include "solving/word_selection.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "crossword/cell.h"
#include "crossword/direction.h"
#include "crossword/words.h"
#include "display/grid_geometry.h"
#include "display/grid_view.h"
#include "display/selected_word.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "multimedia/media_pane.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

/// View cell, from 1, of a pixel position. A grid smaller than the view ends it.
int ViewCell(double position, int grid_cells) {
  const double cell = std::floor(position / cell_pitch) + 1;
  return std::min(static_cast<int>(std::clamp(cell, 1.0, double{view_cells})), grid_cells);
}

/// The cell of the grid at a pixel position of its picture.
GridCell CellAt(double x, double y) {
  return {glavni.pogled_x + ViewCell(x, glavni.ukr_sirina) - 1,
          glavni.pogled_y + ViewCell(y, glavni.ukr_visina) - 1};
}

/// The direction of the only word that lies in a cell; 0 if it has none or two.
int OnlyDirection(GridCell cell) {
  const bool across = LiesInWord(glavni, cell, direction::across);
  if (across == LiesInWord(glavni, cell, direction::down)) return 0;
  return across ? direction::across : direction::down;
}

/// A clue without a word was clicked: its click has taken the mark off the word on record and has
/// turned to the clue's direction. That word stays selected, so it gets its direction and its mark
/// back, and nothing of the click is left for the next one.
void StayWithWord() {
  glavni.iz_liste = 0;
  glavni.prelaz = 0;
  glavni.smer = glavni.prelaz_smer;
  oznaci_rec(0);
}

void TakeOldMarkOff() {
  if (glavni.prelaz_oba == 0) {
    ugasi_oznaku_reci();
    return;
  }
  // The clue click turned no direction, so the opposite of the marked word's is not in `smer`.
  const Int16 turned = std::exchange(glavni.smer, direction::Other(glavni.prelaz_smer));
  ugasi_oznaku_reci();
  glavni.prelaz_oba = 0;
  glavni.smer = turned;
}

}  // namespace

void klik_polje(double x, double y) {
  const GridCell cell = CellAt(x, y);
  if (!IsLetterCell(glavni.ukr_polja(cell.x, cell.y, 1))) {
    if (glavni.iz_liste == 1) StayWithWord();
    return;
  }
  glavni.klik_x = cell.x - glavni.pogled_x + 1;
  glavni.klik_y = cell.y - glavni.pogled_y + 1;

  nadji_rec();
  if (glavni.iz_liste == 0) TakeOldMarkOff();
  oznaci_rec(1);
  glavni.iz_liste = 0;
  zatvori_media();
  glavni.vest = {};
  glavni.pret_x1 = glavni.rec_x1;
  glavni.pret_y1 = glavni.rec_y1;
  glavni.pret_x2 = glavni.rec_x2;
  glavni.pret_y2 = glavni.rec_y2;
  glavni.prelaz_smer = glavni.smer;
}

void klik_misem(double x, double y) {
  const GridCell cell = CellAt(x, y);
  const int only = OnlyDirection(cell);
  if (glavni.bira_jedinu && only != 0) return SelectThrough(cell, only);
  klik_polje(x, y);
  if (only != 0 && SelectedCells().empty()) glavni.vest = {.news = News::nothing_selected};
}

bool BringIntoView(int x, int y) {
  const bool column_shown = InView(x, glavni.pogled_x);
  const bool row_shown = InView(y, glavni.pogled_y);
  if (column_shown && row_shown) return false;
  if (!column_shown) {
    glavni.pogled_x = FirstShown(x, glavni.ukr_sirina);
    frm_glavni->scr_hor.Value(glavni.pogled_x - 1);
  }
  if (!row_shown) {
    glavni.pogled_y = FirstShown(y, glavni.ukr_visina);
    frm_glavni->scr_ver.Value(glavni.pogled_y - 1);
  }
  crtaj_ukrstenicu();
  return true;
}

void ClickCell(int x, int y) {
  constexpr int middle = cell_pitch / 2;
  klik_polje((x - glavni.pogled_x) * cell_pitch + middle,
             (y - glavni.pogled_y) * cell_pitch + middle);
}

void SelectWord(const WordPlace& word) {
  if (word.direction == 0) return;
  const auto [x, y] = word.first;
  if (!IsLetterCell(glavni.ukr_polja(x, y, 1))) return;
  if (BringIntoView(x, y)) oznaci_rec(0);
  if (SelectedWord() != word) SelectThrough(word.first, word.direction);
}

void SelectThrough(GridCell cell, int direction) {
  if (BringIntoView(cell.x, cell.y)) oznaci_rec(0);
  // As after a click on a clue, the direction stays through both searches of the click.
  glavni.prelaz_smer = glavni.smer;
  if (glavni.pret_x2 > 0 && glavni.pret_y2 > 0) glavni.prelaz_oba = 1;
  glavni.smer = direction;
  glavni.prelaz = 1;
  ClickCell(cell.x, cell.y);
  glavni.prelaz = 0;
}

}  // namespace kalvon
