// SPDX-License-Identifier: MIT
#include "crossword/header.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "crossword/crossword.h"
#include "crossword/fields.h"

namespace kalvon {

Header ReadHeader(files::TextReader& file) {
  Header header;
  for (std::string& line : header) line = file.Line();
  return header;
}

Dimensions DimensionsOf(const Header& header) {
  // As in "label:X= 15 Y= 20": two free characters before the width, the height at the end.
  const std::string_view line = header[2];
  const std::string_view value = Behind(line, ':');
  const std::string_view width = value.substr(std::min<std::size_t>(2, value.size()), 3);
  return {DecimalValue(width), DecimalValue(LastCharacters(line, 3))};
}

int JoinOf(const Header& header) {
  using Mark = std::pair<std::size_t, int>;
  constexpr std::array marks = {Mark{5, join::side_by_side}, Mark{6, join::one_under_the_other},
                                Mark{7, join::side_by_side}, Mark{8, join::one_under_the_other}};
  // The last marked line wins. Only its last character counts, so a 10 marks nothing.
  int joined = join::none;
  for (const auto& [line, mark] : marks) {
    if (DecimalValue(LastCharacters(header.at(line), 1)) > 0) joined = mark;
  }
  return joined;
}

}  // namespace kalvon
