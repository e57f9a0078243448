// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace kalvon::testing {

/// What must hold after every event, whatever the user does: at most one bar stands in the lists,
/// the mark in the grid is that of the selected word, the letter boxes show the editor's letters,
/// and the cells keep their form and their solution letters.
class Invariants {
 public:
  /// Takes the loaded crossword as the one whose solution letters must stay.
  void TakeCrossword();

  /// Expects all of it. `typing` says that letters may have been typed since the editor was filled;
  /// `options_open` that script and layout may have changed since the last painting.
  void Expect(bool typing, bool options_open) const;

 private:
  void ExpectCells() const;

  std::vector<std::string> cells_;
};

}  // namespace kalvon::testing
