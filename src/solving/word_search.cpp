// SPDX-License-Identifier: MIT
#include "solving/word_search.h"

#include <string>

namespace kalvon {

namespace {

/// The row or column of the grid in which the word lies.
class Line {
 public:
  Line(bool across, int crossing_place) : across_(across), crossing_place_(crossing_place) {}

  [[nodiscard]] int length() const { return across_ ? glavni.ukr_sirina : glavni.ukr_visina; }
  [[nodiscard]] bool HasLetter(int place) const { return IsLetterCell(Text(place, 1)); }
  [[nodiscard]] bool HasStart(int place) const {
    return StartsWord(Text(place, 2), across_ ? 1 : 2);
  }

 private:
  [[nodiscard]] const std::string& Text(int place, int kind) const {
    const auto& cells = glavni.ukr_polja;
    return across_ ? cells(place, crossing_place_, kind) : cells(crossing_place_, place, kind);
  }

  bool across_;
  int crossing_place_;
};

/// The nearest word start before a place, 0 if there is none. Blocked cells don't stop the search.
int StartBefore(const Line& line, int place) {
  while (place > 0 && !(line.HasLetter(place) && line.HasStart(place))) --place;
  return place;
}

/// The last cell of the word that starts in `first`: `first` - 1 if no letter stands there.
int LastFrom(const Line& line, int first) {
  int last = first;
  while (last <= line.length() && line.HasLetter(last)) ++last;
  return last - 1;
}

/// Changes the direction, but keeps it in the two searches that follow a click on a clue.
void TurnDirection() {
  if (glavni.prelaz == 0) {
    glavni.smer = glavni.smer == 1 ? 2 : 1;
    return;
  }
  glavni.prelaz = glavni.prelaz == 2 ? 0 : glavni.prelaz + 1;
}

}  // namespace

void nadji_rec() {
  glavni.rec_x1 = glavni.pogled_x + glavni.klik_x - 1;
  glavni.rec_y1 = glavni.pogled_y + glavni.klik_y - 1;
  TurnDirection();

  const bool across = glavni.smer == 1;
  Int16& first = across ? glavni.rec_x1 : glavni.rec_y1;
  const Line line(across, across ? glavni.rec_y1 : glavni.rec_x1);
  if (!line.HasStart(first)) first = StartBefore(line, first);
  (across ? glavni.rec_x2 : glavni.rec_y2) = LastFrom(line, first);
  (across ? glavni.rec_y2 : glavni.rec_x2) = across ? glavni.rec_y1 : glavni.rec_x1;
}

std::vector<GridCell> SelectedCells() {
  std::vector<GridCell> cells;
  if (glavni.rec_x1 < 1 || glavni.rec_y1 < 1) return cells;
  if (glavni.smer == 1) {
    for (int x = glavni.rec_x1; x <= glavni.rec_x2; ++x) cells.push_back({x, glavni.rec_y1});
  } else {
    for (int y = glavni.rec_y1; y <= glavni.rec_y2; ++y) cells.push_back({glavni.rec_x1, y});
  }
  return cells;
}

}  // namespace kalvon
