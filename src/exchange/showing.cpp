// SPDX-License-Identifier: MIT
#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/direction.h"
#include "exchange/cell_letter.h"
#include "exchange/storing.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange {
namespace {

/// Letters as other programs hold them.
struct Alphabet {
  bool english = false;
  bool latin = true;

  [[nodiscard]] std::string Letter(char stored) const {
    if (stored == unknown_letter) return {};
    return english ? std::string(1, stored) : UnicodeCapital(stored, latin);
  }
  [[nodiscard]] std::string Text(std::string_view coded) const {
    return english ? std::string(coded) : UnicodeText(coded, latin);
  }
};

/// The digits of the marks of a cell's borders, of which the last two characters tell.
int BorderDigit(std::string_view cell, std::size_t from_end) {
  const char digit = cell.size() > from_end ? cell[cell.size() - from_end] : '0';
  return digit >= '0' && digit <= '9' ? digit - '0' : 0;
}

/// A border is broken by the cell on either side of it.
void ShowBlanks(Puzzle& puzzle, GridCell cell, std::string_view text) {
  const int beside = BorderDigit(text, 2);
  const int under = BorderDigit(text, 1);
  PuzzleCell& shown = puzzle.At(cell);
  if (beside == 1) shown.blank_right = true;
  if (beside > 1 && cell.x > 1) puzzle.At({cell.x - 1, cell.y}).blank_right = true;
  if (under == 1) shown.blank_below = true;
  if (under > 1 && cell.y > 1) puzzle.At({cell.x, cell.y - 1}).blank_below = true;
}

void ShowCell(Puzzle& puzzle, GridCell cell, std::string_view text, const Alphabet& alphabet) {
  PuzzleCell& shown = puzzle.At(cell);
  if (!IsLetterCell(text)) {
    shown.kind = CellKind::block;
    return;
  }
  shown.solution = alphabet.Letter(text.front());
  if (ShowsUserLetter(text)) shown.entry = alphabet.Letter(text[1]);
  ShowBlanks(puzzle, cell, text);
}

/// Numbers go row by row, as other programs count, also where installments stand side by side.
void ShowNumbers(Puzzle& puzzle, const Crossword& crossword) {
  int number = 0;
  for (int y = 1; y <= puzzle.height; ++y)
    for (int x = 1; x <= puzzle.width; ++x)
      if (crossword.rec_broj(x, y) != 0) puzzle.At({x, y}).number = std::to_string(++number);
}

void ShowClues(Puzzle& puzzle, const Crossword& crossword, int direction,
               const Alphabet& alphabet) {
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) {
      const std::string& attributes = crossword.ukr_polja(x, y, 2);
      if (!StartsWord(attributes, direction)) continue;
      const Clue clue = ReadClue(attributes, direction);
      puzzle.clues.push_back({.direction = direction,
                              .cell = {x, y},
                              .number = puzzle.At({x, y}).number,
                              .text = alphabet.Text(clue.text),
                              .medium = std::string(clue.media)});
    }
  }
}

}  // namespace

Puzzle Shown(const HeadedCrossword& headed, bool latin) {
  const Crossword& crossword = headed.crossword;
  const Alphabet alphabet{headed.english, latin};
  Puzzle puzzle = EmptyPuzzle(crossword.ukr_sirina, crossword.ukr_visina);
  puzzle.title = headed.head.title;
  puzzle.author = headed.head.author;
  puzzle.copyright = headed.head.copyright;
  puzzle.description = headed.head.description;
  if (crossword.nast_zadnji > 1) {
    puzzle.installments = crossword.nast_zadnji;
    puzzle.join = crossword.nast_smer;
  }
  puzzle.language = headed.english ? "en" : "sr";
  for (int y = 1; y <= puzzle.height; ++y)
    for (int x = 1; x <= puzzle.width; ++x)
      ShowCell(puzzle, {x, y}, crossword.ukr_polja(x, y, 1), alphabet);
  ShowNumbers(puzzle, crossword);
  for (const int direction : {direction::across, direction::down})
    ShowClues(puzzle, crossword, direction, alphabet);
  return puzzle;
}

}  // namespace kalvon::exchange
