// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace kalvon {

/// A letter in its case.
struct SerbianLetter {
  char stored;                ///< 7-bit YU ASCII; Q, W, X for Lj, Nj, Dž.
  std::string_view latin;     ///< UTF-8.
  std::string_view cyrillic;  ///< UTF-8.
};

/// The small and the capital letters. A digraph stands before the letter with which it begins.
std::span<const SerbianLetter> SerbianLetters();

}  // namespace kalvon
