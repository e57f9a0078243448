// SPDX-License-Identifier: MIT
#include "crossword/step.h"

#include <algorithm>
#include <utility>

#include "crossword/cell.h"

namespace kalvon {

void ChangeCell(Crossword& crossword, Step& step, GridCell cell, std::string changed) {
  std::string& text = crossword.ukr_polja.Mutable(cell.x, cell.y, 1);
  if (changed == text) return;
  step.changes.push_back({cell, std::string(LettersIn(text)), std::string(LettersIn(changed))});
  text = std::move(changed);
}

bool Fits(const Crossword& crossword, const Step& step) {
  return std::ranges::all_of(step.changes, [&](const LetterChange& change) {
    const auto& [x, y] = change.cell;
    if (x < 1 || x > crossword.ukr_sirina || y < 1 || y > crossword.ukr_visina) return false;
    const std::string& text = crossword.ukr_polja(x, y, 1);
    return IsLetterCell(text) && LettersIn(text) == change.before;
  });
}

void Apply(Crossword& crossword, const Step& step) {
  for (const LetterChange& change : step.changes) {
    std::string& text = crossword.ukr_polja.Mutable(change.cell.x, change.cell.y, 1);
    text.replace(1, LettersIn(text).size(), change.after);
  }
}

Step Inverse(Step step) {
  std::ranges::reverse(step.changes);
  for (LetterChange& change : step.changes) std::swap(change.before, change.after);
  return step;
}

}  // namespace kalvon
