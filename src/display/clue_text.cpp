// SPDX-License-Identifier: MIT
#include "display/clue_text.h"

#include "document/crossword_state.h"

namespace kalvon {

Clue ReadClue(std::string_view attributes, int direction) {
  const int fields_before = direction == 1 ? 4 : 5;
  std::string_view text = Behind(attributes, '$', fields_before);
  text = text.substr(0, text.find('$'));
  if (!text.starts_with('/')) return {{}, text};

  const std::size_t closing = text.find('/', 1);
  if (closing == std::string_view::npos) return {{}, text};
  return {text.substr(1, closing - 1), text.substr(closing + 1)};
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace kalvon
