// SPDX-License-Identifier: MIT
#include "letters/transliteration.h"

#include <algorithm>

#include "letters/serbian_letters.h"

namespace kalvon {

std::string InScript(std::string_view text, bool latin) {
  const auto letters = SerbianLetters();
  std::string shown;
  bool kept = latin;
  while (!text.empty()) {
    const auto begins = [&](const SerbianLetter& letter) { return text.starts_with(letter.latin); };
    const auto letter = kept ? letters.end() : std::ranges::find_if(letters, begins);
    if (text.front() == '`') {
      kept = latin || !kept;
      text.remove_prefix(1);
    } else if (letter == letters.end()) {
      shown += text.front();
      text.remove_prefix(1);
    } else {
      shown += letter->cyrillic;
      text.remove_prefix(letter->latin.size());
    }
  }
  return shown;
}

}  // namespace kalvon
