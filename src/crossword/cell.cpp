// SPDX-License-Identifier: MIT
#include "crossword/cell.h"

namespace kalvon {

bool IsLetterCell(std::string_view cell) { return !cell.empty() && cell.front() != '$'; }

std::string_view UserLetter(std::string_view cell) {
  return cell.size() > 1 && cell[1] != '$' ? cell.substr(1, 1) : std::string_view{};
}

bool ShowsUserLetter(std::string_view cell) { return cell.size() > 2 && cell[2] == '$'; }

bool IsWrong(std::string_view cell) { return ShowsUserLetter(cell) && cell[0] != cell[1]; }

std::string_view LettersIn(std::string_view cell) { return cell.substr(1, cell.find('$') - 1); }

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

}  // namespace kalvon
