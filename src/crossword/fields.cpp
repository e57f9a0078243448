// SPDX-License-Identifier: MIT
#include "crossword/fields.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace kalvon {

std::string_view Behind(std::string_view text, char mark, int count) {
  for (; count > 0; --count) {
    const std::size_t found = text.find(mark);
    if (found == std::string_view::npos) return {};
    text.remove_prefix(found + 1);
  }
  return text;
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
  return text.substr(text.size() - std::min(count, text.size()));
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

int DecimalValue(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  unsigned value = 0;
  const auto limit = static_cast<unsigned>(std::numeric_limits<int>::max());
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (failure == std::errc::result_out_of_range || value > limit) value = limit;
  return negative ? -static_cast<int>(value) : static_cast<int>(value);
}

}  // namespace kalvon
