// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "crossword/crossword.h"
#include "crossword/table.h"

namespace kalvon {

/// What the files of a crossword hold of the user's letters.
class SavedLetters {
 public:
  SavedLetters() = default;
  /// Takes over the crossword as it has been read.
  explicit SavedLetters(const Crossword& crossword);

  /// The cells of an installment are in its file now.
  void Written(const Crossword& crossword, int installment);
  /// Whether the files hold all letters of the crossword.
  [[nodiscard]] bool HoldAll(const Crossword& crossword) const;

 private:
  Table<std::string, 2> cells_;
};

}  // namespace kalvon
