// SPDX-License-Identifier: MIT
#pragma once

#include "crossword/crossword.h"
#include "crossword/reading.h"

namespace kalvon {

/// Clues of each direction; one whose cell starts both words counts in both.
struct ClueCounts {
  int across = 0;
  int down = 0;
};

/// Numbers the cells that start a word and fills `rec_broj`, `pitanja` and `broj_pitanja`: column
/// by column if the installments are joined side by side, else row by row. Returns the counts of
/// the whole crossword. Error 9 if the clue table has too few rows; such a crossword, and one
/// without a clue, is no crossword that could be written.
ClueCounts NumberClues(Crossword& crossword, const Progress& progress);

/// The place that a clue has among the clues of each direction, counted from 1: its own place in
/// its own direction, the next clue's place in the other. Error 9 for a number that no clue has.
ClueCounts PlaceOfClue(const Crossword& crossword, int number);

/// The clue at a place, counted from 1, among those of a direction; 0 if there are fewer.
int ClueAtPlace(const Crossword& crossword, int place, int direction);

}  // namespace kalvon
