// SPDX-License-Identifier: MIT
#include "crossword/clue.h"

#include <algorithm>

#include "crossword/direction.h"
#include "crossword/fields.h"

namespace kalvon {

std::string ReadAttributes(files::TextReader& file, bool last_cell) {
  if (last_cell && file.AtEnd()) return "";
  std::string attributes = file.Line();
  std::ranges::replace(attributes, ';', ',');
  return attributes;
}

bool StartsWord(std::string_view attributes, int direction) {
  const auto place = static_cast<std::size_t>(direction);
  return place < attributes.size() && attributes[place] == '1';
}

int KindOf(std::string_view attributes) {
  return (StartsWord(attributes, direction::across) ? direction::across : 0) +
         (StartsWord(attributes, direction::down) ? direction::down : 0);
}

Clue ReadClue(std::string_view attributes, int direction) {
  const int fields_before = direction == direction::across ? 4 : 5;
  std::string_view text = Behind(attributes, '$', fields_before);
  text = text.substr(0, text.find('$'));
  if (!text.starts_with('/')) return {{}, text};

  const std::size_t closing = text.find('/', 1);
  if (closing == std::string_view::npos) return {{}, text};
  return {text.substr(1, closing - 1), text.substr(closing + 1)};
}

}  // namespace kalvon
