// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "crossword/direction.h"
#include "exchange/format.h"

namespace kalvon::exchange::testing {

/// A conversion as a test sees it: what was said, or why it ended.
inline std::vector<Matter> Matters(const Remarks& remarks) {
  std::vector<Matter> matters;
  for (const Remark& remark : remarks.List()) matters.push_back(remark.matter);
  return matters;
}

template <typename Function>
std::optional<Matter> ErrorOf(Function function) {
  try {
    function();
  } catch (const ConversionError& error) {
    return error.Why().matter;
  }
  return std::nullopt;
}

/// Solutions and entries as rows of a grid, with "#", "_" and "?" for what is no letter; a text of
/// several stands in brackets.
inline std::string Grid(const Puzzle& puzzle, std::string PuzzleCell::*part) {
  std::string rows;
  for (std::size_t i = 0; i < puzzle.cells.size(); ++i) {
    const PuzzleCell& cell = puzzle.cells[i];
    const std::string& text = cell.*part;
    if (i > 0 && i % static_cast<std::size_t>(puzzle.width) == 0) rows += ' ';
    if (cell.kind != CellKind::letter)
      rows += cell.kind == CellKind::block ? '#' : '_';
    else if (text.empty())
      rows += '?';
    else
      rows += text.size() == 1 ? text : '(' + text + ')';
  }
  return rows;
}

inline std::string Clues(const Puzzle& puzzle) {
  std::string lines;
  for (const PuzzleClue& clue : puzzle.clues) {
    lines += (clue.direction == direction::across ? 'A' : 'D') + clue.number + ' ' + clue.text;
    if (clue.cell == GridCell{}) lines += " (nowhere)";
    if (!clue.medium.empty()) lines += " (" + clue.medium + ')';
    lines += '\n';
  }
  return lines;
}

/// A grid of blocks, letters of both scripts, digraphs, cells without a solution, and entries; a
/// clue for most words, with signs that mean something in one format or another.
inline Puzzle RandomPuzzle(std::mt19937& random, bool with_all) {
  const auto below = [&](int end) { return std::uniform_int_distribution(0, end - 1)(random); };
  const std::vector<std::string> letters = {"A", "B",  "Č", "Đ",  "LJ", "DŽ", "Љ",   "Ж", "É",
                                            "X", "QU", "ß", "4",  "?",  ".",  "-",   "/", "O/A",
                                            "|", "A-", "a", "Š'", "~",  "::", "***", "*"};
  const std::vector<std::string> texts = {
      "Slon",  "Слон у „соби”", "a < b & c", R"({/x/} \ {\~\})", "2 ~ 3 ~ ČETIRI", "{~", "",
      "A1. x", "|{@|@}",        "– …",       "^Media: x"};
  const auto letter = [&] { return letters[static_cast<std::size_t>(below(with_all ? 26 : 9))]; };
  const auto text = [&] { return texts[static_cast<std::size_t>(below(11))]; };
  Puzzle puzzle = EmptyPuzzle(2 + below(12), 2 + below(12));
  for (PuzzleCell& cell : puzzle.cells) {
    if (below(5) == 0) cell.kind = with_all && below(2) == 0 ? CellKind::empty : CellKind::block;
    if (cell.kind != CellKind::letter) continue;
    if (below(20) != 0) cell.solution = letter();
    if (below(3) == 0) cell.entry = letter();
  }
  puzzle.cells[0] = {.solution = "A"};
  for (const int word : {direction::across, direction::down}) {
    for (const WordStart& start : WordStarts(puzzle)) {
      if (!BelongsTo(start.kind, word) || below(9) == 0) continue;
      puzzle.clues.push_back({.direction = word,
                              .cell = start.cell,
                              .number = std::to_string(start.number),
                              .text = text(),
                              .medium = with_all && below(5) == 0 ? "slon.png" : ""});
    }
  }
  // One of the formats takes an empty clue for none.
  if (!with_all)
    std::erase_if(puzzle.clues, [](const PuzzleClue& clue) { return clue.text.empty(); });
  puzzle.title = text();
  puzzle.author = text();
  puzzle.copyright = text();
  puzzle.description = text();
  return puzzle;
}

}  // namespace kalvon::exchange::testing
