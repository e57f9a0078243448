// SPDX-License-Identifier: MIT
#include "crossword/cell.h"

#include <algorithm>

namespace kalvon {

bool IsLetterCell(std::string_view cell) { return !cell.empty() && cell.front() != '$'; }

bool HasSolution(std::string_view cell) { return cell.front() != unknown_letter; }

std::string_view UserLetter(std::string_view cell) {
  return cell.size() > 1 && cell[1] != '$' ? cell.substr(1, 1) : std::string_view{};
}

bool ShowsUserLetter(std::string_view cell) { return cell.size() > 2 && cell[2] == '$'; }

bool IsWrong(std::string_view cell) {
  return ShowsUserLetter(cell) && HasSolution(cell) && cell[0] != cell[1];
}

std::string_view LettersIn(std::string_view cell) { return cell.substr(1, cell.find('$') - 1); }

std::string_view FieldsIn(std::string_view cell) {
  return cell.substr(std::min(cell.find('$'), cell.size()));
}

bool DifferInLetterAtMost(std::string_view one, std::string_view other) {
  return one.substr(0, 1) == other.substr(0, 1) && FieldsIn(one) == FieldsIn(other);
}

std::string WithoutUserLetter(std::string_view cell) {
  return std::string(cell.substr(0, 1)).append(FieldsIn(cell));
}

std::string WithUserLetter(std::string_view cell, char letter) {
  std::string result = WithoutUserLetter(cell);
  return result.insert(1, 1, letter);
}

}  // namespace kalvon
