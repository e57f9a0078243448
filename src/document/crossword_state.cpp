// SPDX-License-Identifier: MIT
#include "document/crossword_state.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace kalvon {

CrosswordState glavni;

bool IsLetterCell(std::string_view cell) { return !cell.empty() && cell.front() != '$'; }

std::string_view UserLetter(std::string_view cell) {
  return cell.size() > 1 && cell[1] != '$' ? cell.substr(1, 1) : std::string_view{};
}

std::string WithoutUserLetter(std::string_view cell) {
  const std::size_t rest = cell.find('$');
  std::string result(cell.substr(0, 1));
  if (rest != std::string_view::npos) result += cell.substr(rest);
  return result;
}

std::string WithUserLetter(std::string_view cell, char letter) {
  std::string result = WithoutUserLetter(cell);
  return result.insert(1, 1, letter);
}

bool StartsWord(std::string_view attributes, int direction) {
  const auto place = static_cast<std::size_t>(direction);
  return place < attributes.size() && attributes[place] == '1';
}

std::string_view Behind(std::string_view text, char mark, int count) {
  for (; count > 0; --count) {
    const std::size_t found = text.find(mark);
    if (found == std::string_view::npos) return {};
    text.remove_prefix(found + 1);
  }
  return text;
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

std::string InstallmentDigits(int number) {
  constexpr std::size_t length = 3;
  const std::string digits = std::to_string(number);
  return glavni.nule.substr(0, length - std::min(length, digits.size())) + digits;
}

std::string InstallmentPath(int number, std::string_view extension) {
  const bool numbered = glavni.nast_cifre == 3;
  const std::size_t replaced = numbered ? std::size("001.qvm") - 1 : std::size("qvm") - 1;
  std::string path = glavni.ukr_ucitana;
  if (path.size() < replaced) throw files::RuntimeError(files::error::invalid_call);
  path.resize(path.size() - replaced);
  if (numbered) path += InstallmentDigits(number) + '.';
  return path.append(extension);
}

}  // namespace kalvon
