// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>

#include "exchange/format.h"

namespace kalvon::exchange {

/// What a content is read as: rows of solutions ("*" for none) with "|" and "_" for blanks behind
/// and below a cell, its number before and the user's letter in brackets behind, "#" for a block,
/// "." for a hole; then each clue with its number, direction, cell and text; then the remarks. For
/// what cannot be read, the error.
std::string ReadAs(const Format& format, const std::string& bytes);

/// A puzzle with everything that a format of clues and cells can hold.
Puzzle RandomPuzzle(std::mt19937& random);

/// Writes, reads and compares.
void ExpectRoundTrip(const Format& format, const Puzzle& puzzle);

}  // namespace kalvon::exchange
