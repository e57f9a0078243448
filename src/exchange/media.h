// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exchange/storing.h"

namespace kalvon::exchange {

/// A clue of a crossword, by its cell and direction, and its medium.
struct MediaClue {
  GridCell cell;
  int direction = 0;
  std::string medium;
};

/// The clues that have a medium, row by row.
std::vector<MediaClue> MediaClues(const Crossword& crossword);

/// Gives a clue another medium; an empty name leaves its text alone.
void GiveMedium(Crossword& crossword, const MediaClue& clue, const std::string& name);

/// What the table of a clue's installment says of its medium, and the medium's bytes as far as the
/// pack holds them.
struct PackedMedium {
  std::int64_t size = 0;
  std::string bytes;
};
/// None if the table does not name it, or if the program would show no file of such a name or size.
std::optional<PackedMedium> MediumInPack(const Crossword& crossword, const MediaClue& clue);

/// Reads the media of a crossword's clues out of its packs. Where two packs have different files of
/// one name, the later one gets another. What is not there is told, and its clue keeps the text
/// alone.
void ReadMedia(HeadedCrossword& headed, Remarks& remarks);

}  // namespace kalvon::exchange
