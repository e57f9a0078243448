// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"
#include "fuzz_folder.h"

/// What can be read is written and read again. From then on it stays as it is: only what the format
/// writes in another way may differ from the first reading.
inline void ReadWriteRead(kalvon::exchange::Puzzle (*read)(std::string_view,
                                                           kalvon::exchange::Remarks&),
                          std::string (*write)(const kalvon::exchange::Puzzle&,
                                               kalvon::exchange::Remarks&),
                          std::string_view bytes) {
  kalvon::exchange::Remarks remarks;
  kalvon::exchange::Puzzle puzzle;
  try {
    puzzle = read(bytes, remarks);
  } catch (const kalvon::exchange::ConversionError&) {
    return;
  }
  const kalvon::exchange::Puzzle again = read(write(puzzle, remarks), remarks);
  Require(again.width == puzzle.width && again.height == puzzle.height);
  Require(again.clues.size() == puzzle.clues.size());
  Require(read(write(again, remarks), remarks) == again);
}
