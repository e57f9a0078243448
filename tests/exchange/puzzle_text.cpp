// SPDX-License-Identifier: MIT
#include "exchange/puzzle_text.h"

#include <gtest/gtest.h>

#include "crossword/direction.h"

namespace kalvon::exchange {
namespace {

std::string Shown(const PuzzleCell& cell) {
  if (cell.kind != CellKind::letter) return cell.kind == CellKind::block ? "#" : ".";
  return cell.number + (cell.solution.empty() ? "*" : cell.solution) +
         (cell.entry.empty() ? "" : "(" + cell.entry + ")") + (cell.blank_right ? "|" : "") +
         (cell.blank_below ? "_" : "");
}

}  // namespace

std::string ReadAs(const Format& format, const std::string& bytes) try {
  Remarks remarks;
  const Puzzle puzzle = format.read(bytes, remarks);
  std::string shown;
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) shown += Shown(puzzle.At({x, y}));
    if (y < puzzle.height) shown += '/';
  }
  for (const PuzzleClue& clue : puzzle.clues) {
    shown += "; " + clue.number + (clue.direction == direction::across ? "A" : "D") +
             std::to_string(clue.cell.x) + std::to_string(clue.cell.y) + " " + clue.text;
  }
  for (const Remark& remark : remarks.List()) shown += "\n" + TextOf(remark, true);
  return shown;
} catch (const ConversionError& error) {
  return TextOf(error.Why(), true);
}

Puzzle RandomPuzzle(std::mt19937& random) {
  const auto pick = [&](int most) { return std::uniform_int_distribution<>(0, most)(random); };
  const std::string letters[] = {"A", "Š", "LJ", "Њ", "é", "0", "", "ABC", "#"};
  const std::string texts[] = {"Ptica", "Птица „лабуд“", "a < b & c", "R&amp;B <i>",   "",
                               "\"x\"", "&scaron;",      "<br> ]]>",  "čćžšđ 100 % ~", "😀"};
  Puzzle puzzle = EmptyPuzzle(2 + pick(5), 2 + pick(5));
  puzzle.title = texts[pick(9)];
  puzzle.author = texts[pick(9)];
  puzzle.copyright = texts[pick(9)];
  puzzle.description = texts[pick(9)];
  puzzle.language = pick(2) == 0 ? "sr" : pick(1) == 0 ? "en" : "";
  for (PuzzleCell& cell : puzzle.cells) {
    if (const int kind = pick(7); kind < 2)
      cell.kind = kind == 0 ? CellKind::block : CellKind::empty;
    else
      cell = {.solution = letters[pick(8)], .entry = pick(3) == 0 ? letters[pick(8)] : ""};
  }
  const bool odd_numbers = pick(1) == 0;
  for (const WordStart& start : WordStarts(puzzle))
    puzzle.At(start.cell).number =
        odd_numbers && pick(3) == 0 ? "7a" : std::to_string(start.number);
  for (const int direction : {direction::across, direction::down}) {
    for (const WordStart& start : WordStarts(puzzle)) {
      if (!BelongsTo(start.kind, direction) || pick(9) == 0) continue;
      puzzle.clues.push_back({.direction = direction,
                              .cell = start.cell,
                              .number = puzzle.At(start.cell).number,
                              .text = texts[pick(9)]});
      const bool across = direction == direction::across;
      GridCell cell = start.cell;
      for (;; across ? ++cell.x : ++cell.y) {
        if (!puzzle.HasLetter(across ? GridCell{cell.x + 1, cell.y} : GridCell{cell.x, cell.y + 1}))
          break;
        (across ? puzzle.At(cell).blank_right : puzzle.At(cell).blank_below) = pick(4) == 0;
      }
    }
    if (pick(9) == 0) puzzle.clues.push_back({.direction = direction, .number = "99", .text = "?"});
  }
  return puzzle;
}

void ExpectRoundTrip(const Format& format, const Puzzle& puzzle) {
  Remarks remarks;
  const std::string bytes = format.write(puzzle, remarks);
  EXPECT_TRUE(remarks.List().empty()) << TextOf(remarks.List().front(), true);
  EXPECT_EQ(FormatOfContent(bytes), &format);
  try {
    EXPECT_EQ(format.read(bytes, remarks), puzzle) << bytes << '\n' << ReadAs(format, bytes);
  } catch (const ConversionError& error) {
    ADD_FAILURE() << TextOf(error.Why(), true) << '\n' << bytes;
  }
}

}  // namespace kalvon::exchange
