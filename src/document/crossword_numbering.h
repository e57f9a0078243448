// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Clues of each direction; one whose cell starts both words counts in both.
struct ClueCounts {
  int across = 0;
  int down = 0;
};

/// Numbers the cells that start a word and fills `rec_broj`, `pitanja` and `broj_pitanja`: column
/// by column if the installments are joined side by side, else row by row. Moves the progress bar.
/// Returns the counts of the whole crossword. Error 9 if the clue table has too few rows.
ClueCounts NumberClues(int joined);

/// The cell of the view with the lowest clue number.
struct FirstClue {
  int number;
  int x;
  int y;
};

/// Finds it. A view without a clue gives the cell (1, 1) and a number that no clue has.
FirstClue FindFirstClue();

/// The place that a clue has among the clues of each direction, counted from 1: its own place in
/// its own direction, the next clue's place in the other. Error 9 for a number that no clue has.
ClueCounts PlaceOfClue(int number);

}  // namespace kalvon
