// SPDX-License-Identifier: MIT
#include "display/selected_word.h"

#include "crossword/direction.h"
#include "crossword/words.h"
#include "document/crossword_state.h"

namespace kalvon {

namespace {

/// Changes the direction, but keeps it in the two searches that follow a click on a clue.
void TurnDirection() {
  if (glavni.prelaz == 0) {
    glavni.smer = direction::Other(glavni.smer);
    return;
  }
  glavni.prelaz = glavni.prelaz == 2 ? 0 : glavni.prelaz + 1;
}

}  // namespace

GridCell ClickedCell() {
  return {glavni.pogled_x + glavni.klik_x - 1, glavni.pogled_y + glavni.klik_y - 1};
}

void nadji_rec() {
  const GridCell clicked = ClickedCell();
  glavni.rec_x1 = clicked.x;
  glavni.rec_y1 = clicked.y;
  TurnDirection();
  const auto [first, last] = FindWord(glavni, clicked, glavni.smer);
  if (glavni.smer == direction::across) {
    glavni.rec_x1 = first;
    glavni.rec_x2 = last;
    glavni.rec_y2 = clicked.y;
  } else {
    glavni.rec_y1 = first;
    glavni.rec_y2 = last;
    glavni.rec_x2 = clicked.x;
  }
}

WordPlace SelectedWord() {
  if (SelectedCells().empty()) return {};
  return {{glavni.rec_x1, glavni.rec_y1}, glavni.smer};
}

std::vector<GridCell> SelectedCells() {
  std::vector<GridCell> cells;
  if (glavni.rec_x1 < 1 || glavni.rec_y1 < 1) return cells;
  if (glavni.smer == direction::across) {
    for (int x = glavni.rec_x1; x <= glavni.rec_x2; ++x) cells.push_back({x, glavni.rec_y1});
  } else {
    for (int y = glavni.rec_y1; y <= glavni.rec_y2; ++y) cells.push_back({glavni.rec_x1, y});
  }
  return cells;
}

}  // namespace kalvon
