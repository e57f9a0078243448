// SPDX-License-Identifier: MIT
#include "exchange/puzzle.h"

#include "crossword/direction.h"
#include "exchange/remark.h"

namespace kalvon::exchange {
namespace {

/// The cells of the largest crossword: twice as many steps must fit 16 bits.
constexpr int most_cells = 16383;

}  // namespace

bool Puzzle::HasLetter(GridCell cell) const {
  return cell.x >= 1 && cell.x <= width && cell.y >= 1 && cell.y <= height &&
         At(cell).kind == CellKind::letter;
}

Puzzle EmptyPuzzle(int width, int height) {
  if (width < 1 || height < 1) throw ConversionError(Matter::no_cells);
  if (width > most_cells / height) throw ConversionError(Matter::too_many_cells);
  Puzzle puzzle;
  puzzle.width = width;
  puzzle.height = height;
  puzzle.cells.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  return puzzle;
}

std::vector<WordStart> WordStarts(const Puzzle& puzzle) {
  std::vector<WordStart> starts;
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) {
      if (!puzzle.HasLetter({x, y})) continue;
      const bool across = !puzzle.HasLetter({x - 1, y}) && puzzle.HasLetter({x + 1, y});
      const bool down = !puzzle.HasLetter({x, y - 1}) && puzzle.HasLetter({x, y + 1});
      const int kind = (across ? direction::across : 0) + (down ? direction::down : 0);
      if (kind != 0) starts.push_back({{x, y}, static_cast<int>(starts.size()) + 1, kind});
    }
  }
  return starts;
}

}  // namespace kalvon::exchange
