// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "crossword/crossword.h"

namespace kalvon {

// Steps: what one command changes in the cells, to be taken back and made again.

/// What made a step. The numbers are those of the journal.
enum class StepKind : std::uint8_t {
  word_entered = 1,
  letter_solved,
  word_solved,
  word_erased,
  puzzle_solved,
  puzzle_erased,
  wrong_erased,
  earlier_work,  ///< Steps of an earlier time, laid over the crossword as one.
  word_typed     ///< Letters that went into the cells as they were typed.
};

/// A change of what stands between the solution letter and the first "$" of a cell string: in a
/// cell as it should be, the user's letter or nothing.
struct LetterChange {
  GridCell cell;
  std::string before;
  std::string after;

  bool operator==(const LetterChange&) const = default;
};

using Changes = std::vector<LetterChange>;

/// Where the user was: the first cell of the selected word, and its direction, 0 for no word.
struct WordPlace {
  GridCell first;
  int direction = 0;

  bool operator==(const WordPlace&) const = default;
};

struct Step {
  StepKind kind = StepKind::word_entered;
  WordPlace word = {};
  Changes changes = {};  ///< Each cell comes once.

  bool operator==(const Step&) const = default;
};

/// Puts another string into a letter cell, and notes in the step what that changes. Solution and
/// fields must be the same.
void ChangeCell(Crossword& crossword, Step& step, GridCell cell, std::string changed);

/// Whether each cell that a step changes is as it was before it.
bool Fits(const Crossword& crossword, const Step& step);
/// Makes a step that fits, byte for byte.
void Apply(Crossword& crossword, const Step& step);
/// The step that takes a step back.
Step Inverse(Step step);

}  // namespace kalvon
