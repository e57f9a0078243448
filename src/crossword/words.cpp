// SPDX-License-Identifier: MIT
#include "crossword/words.h"

#include <string>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/direction.h"

namespace kalvon {
namespace {

/// The row or column of the grid in which the word lies.
class Line {
 public:
  Line(const Crossword& crossword, GridCell cell, int direction)
      : crossword_(crossword),
        across_(direction == direction::across),
        crossing_place_(across_ ? cell.y : cell.x) {}

  [[nodiscard]] int length() const {
    return across_ ? crossword_.ukr_sirina : crossword_.ukr_visina;
  }
  [[nodiscard]] bool HasLetter(int place) const { return IsLetterCell(Text(place, 1)); }
  [[nodiscard]] bool HasStart(int place) const {
    return StartsWord(Text(place, 2), across_ ? direction::across : direction::down);
  }

 private:
  [[nodiscard]] const std::string& Text(int place, int kind) const {
    return across_ ? crossword_.ukr_polja(place, crossing_place_, kind)
                   : crossword_.ukr_polja(crossing_place_, place, kind);
  }

  const Crossword& crossword_;
  bool across_;
  int crossing_place_;
};

/// The nearest word start before a place, 0 if there is none.
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

}  // namespace

WordSpan FindWord(const Crossword& crossword, GridCell cell, int direction) {
  const Line line(crossword, cell, direction);
  const int place = direction == direction::across ? cell.x : cell.y;
  const int first = line.HasStart(place) ? place : StartBefore(line, place);
  return {first, LastFrom(line, first)};
}

bool LiesInWord(const Crossword& crossword, GridCell cell, int direction) {
  const auto [first, last] = FindWord(crossword, cell, direction);
  const int place = direction == direction::across ? cell.x : cell.y;
  return place >= first && place <= last;
}

}  // namespace kalvon
