// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "exchange/puzzle.h"
#include "exchange/remark.h"

namespace kalvon::exchange {

// What the formats share that list clues beside the grid: which word belongs to a clue.

/// A clue as a file lists it. Its direction is 0 where the title of its list says none.
struct ListedClue {
  PuzzleClue clue = {};
  std::optional<std::vector<GridCell>> cells =
      {};                    ///< The cells of its word in their order, where the file lists them.
  QString enumeration = {};  ///< The lengths of the parts of the answer, as "3,4".
};

/// The direction that the title of a list names, in English or another usual language; 0 for none.
int DirectionOfTitle(const QString& title);

/// Gives the grid its clues and the blanks of their answers. A clue goes to the word of its cells,
/// else to that of its number, else to that of its place in a list of as many clues as words.
/// ConversionError if there are too many clues, or a clue has other cells than those of whole
/// straight words.
void PlaceClues(Puzzle& puzzle, std::vector<ListedClue> clues);

/// Ends the conversion if a bar, given by the cells on its sides, divides a word.
void RefuseBars(const Puzzle& puzzle, const std::vector<std::pair<GridCell, GridCell>>& bars);

/// The cells of the word of a direction that starts here.
std::vector<GridCell> WordFrom(const Puzzle& puzzle, GridCell start, int direction);

/// The lengths of the parts of an answer as "3,4", empty for one without blanks.
std::string EnumerationOf(const Puzzle& puzzle, const PuzzleClue& clue);

/// Remarks what a file of clues and their words has no place for.
void RemarkLosses(const Puzzle& puzzle, Remarks& remarks);

/// The puzzle with the usual numbers, if it has none.
Puzzle Numbered(Puzzle puzzle);

}  // namespace kalvon::exchange
