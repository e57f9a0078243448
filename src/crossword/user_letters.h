// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "crossword/crossword.h"
#include "crossword/step.h"

namespace kalvon {

/// The user's letters alone, of all cells of a crossword.
class UserLetters {
 public:
  /// None at all for a crossword that is too large to be read.
  explicit UserLetters(const Crossword& crossword);

  /// The same cells without letters.
  [[nodiscard]] UserLetters Erased() const;
  /// What a cell has; null if it takes no letter.
  [[nodiscard]] const std::string* At(GridCell cell) const;
  /// The changes that lead to other letters of the same crossword.
  [[nodiscard]] Changes To(const UserLetters& others) const;

  /// Whether each cell of the changes takes letters.
  [[nodiscard]] bool Take(const Changes& changes) const;
  /// Whether each has those from which it is changed.
  [[nodiscard]] bool Fit(const Changes& changes) const;
  /// Makes changes to cells that take letters, whatever they have.
  void Lay(const Changes& changes);
  void Lay(const LetterChange& change) { letters_[PlaceOf(change.cell)] = change.after; }

  bool operator==(const UserLetters&) const = default;

 private:
  [[nodiscard]] std::size_t PlaceOf(GridCell cell) const;
  [[nodiscard]] GridCell CellAt(std::size_t place) const;

  int width_;
  /// Row by row. A blocked cell has "$", which is no letter, so that nothing changes it.
  std::vector<std::string> letters_;
};

}  // namespace kalvon
