// SPDX-License-Identifier: MIT
#include "crossword/user_letters.h"

#include <algorithm>
#include <string_view>

#include "crossword/cell.h"

namespace kalvon {

namespace {

constexpr std::string_view blocked = "$";
constexpr int most_cells = 16383;

}  // namespace

UserLetters::UserLetters(const Crossword& crossword) : width_(crossword.ukr_sirina) {
  if (crossword.ukr_sirina * crossword.ukr_visina > most_cells) return;
  for (int y = 1; y <= crossword.ukr_visina; ++y) {
    for (int x = 1; x <= crossword.ukr_sirina; ++x) {
      const std::string& cell = crossword.ukr_polja(x, y, 1);
      letters_.emplace_back(IsLetterCell(cell) ? LettersIn(cell) : blocked);
    }
  }
}

UserLetters UserLetters::Erased() const {
  UserLetters erased = *this;
  for (std::string& letters : erased.letters_)
    if (letters != blocked) letters.clear();
  return erased;
}

const std::string* UserLetters::At(GridCell cell) const {
  const std::size_t place = PlaceOf(cell);
  const bool is_letter_cell = place < letters_.size() && letters_[place] != blocked;
  return is_letter_cell ? &letters_[place] : nullptr;
}

Changes UserLetters::To(const UserLetters& others) const {
  Changes changes;
  for (std::size_t place = 0; place < letters_.size(); ++place) {
    if (letters_[place] != others.letters_[place])
      changes.push_back({CellAt(place), letters_[place], others.letters_[place]});
  }
  return changes;
}

bool UserLetters::Take(const Changes& changes) const {
  return std::ranges::all_of(
      changes, [&](const LetterChange& change) { return At(change.cell) != nullptr; });
}

bool UserLetters::Fit(const Changes& changes) const {
  return std::ranges::all_of(changes, [&](const LetterChange& change) {
    const std::string* letters = At(change.cell);
    return letters != nullptr && *letters == change.before;
  });
}

void UserLetters::Lay(const Changes& changes) {
  for (const LetterChange& change : changes) Lay(change);
}

/// A number beyond all places for a cell outside the grid.
std::size_t UserLetters::PlaceOf(GridCell cell) const {
  if (cell.x < 1 || cell.x > width_ || cell.y < 1) return letters_.size();
  return static_cast<std::size_t>(cell.y - 1) * static_cast<std::size_t>(width_) +
         static_cast<std::size_t>(cell.x - 1);
}

GridCell UserLetters::CellAt(std::size_t place) const {
  const auto width = static_cast<std::size_t>(width_);
  return {static_cast<int>(place % width) + 1, static_cast<int>(place / width) + 1};
}

}  // namespace kalvon
