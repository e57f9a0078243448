// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

/// A text of the strip in both languages. The Serbian one is Latin, as InScript takes it; "%"
/// stands for what a text is about.
struct StripText {
  std::string_view serbian;
  std::string_view english;
};

/// In the language of the program and in the script that the user has chosen. What is put in for
/// the
/// "%" stays as it is.
std::string Shown(const StripText& text, std::string_view about = {});

/// What the strip says of the news; before the first crossword, how to load one.
std::string NewsText();

}  // namespace kalvon
