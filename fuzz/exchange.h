// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"
#include "fuzz_folder.h"

/// A crossword of another program: what can be read is written, and read again as it was, but for
/// what the writer names.
inline void ReadWriteRead(const kalvon::exchange::Format& format, std::string_view bytes) {
  using namespace kalvon::exchange;
  format.fits(bytes);
  try {
    Remarks remarks;
    const Puzzle puzzle = format.read(bytes, remarks);
    Remarks losses;
    const std::string written = format.write(puzzle, losses);
    Require(format.fits(written));
    Remarks again;
    const Puzzle read = format.read(written, again);
    Require(read == puzzle || !losses.List().empty());
    Require(format.write(read, again) == written);
  } catch (const ConversionError& error) {
    Require(!TextOf(error.Why(), true).empty());
  }
}
