// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "crossword/crossword.h"

namespace kalvon {

// By what a crossword is known again.

/// A hash of all that its files hold but the user's letters.
std::uint64_t ContentOf(const Crossword& crossword);

/// The host path of the file of its first installment, without links. Empty for a crossword that
/// was not read to its end.
std::string PlaceOf(const Crossword& crossword);

/// Whether a crossword of this content lies there, or a file that may be one but cannot be read
/// now.
bool LiesAt(const std::string& place, std::uint64_t content);

}  // namespace kalvon
