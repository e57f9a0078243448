// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

// A cell string: the solution letter, the user's letter if there is one, and from the first "$" on
// the fields that are only carried. A string that begins with "$" is a blocked cell.

/// The two blocked cells that are drawn: a gray block, and the black square that also fills a
/// missing installment.
inline constexpr std::string_view gray_block = "$1$";
inline constexpr std::string_view black_square = "$2$";

/// Stands for a solution letter that nobody has told.
inline constexpr char unknown_letter = '?';

/// Whether a word may lie in the cell: it is neither blocked nor empty.
bool IsLetterCell(std::string_view cell);
/// Whether the solution letter of a letter cell is known, so that it can be solved and checked.
bool HasSolution(std::string_view cell);
/// The user's letter in a letter cell, or "" without one.
std::string_view UserLetter(std::string_view cell);
/// Whether the cell shows a user's letter: the third character tells.
bool ShowsUserLetter(std::string_view cell);
/// Whether it shows one that is not the solution, which is known.
bool IsWrong(std::string_view cell);
/// What stands in a letter cell between the solution letter and the fields: the user's letter or
/// nothing, if the cell is as it should be.
std::string_view LettersIn(std::string_view cell);
/// The fields, from the first "$" on.
std::string_view FieldsIn(std::string_view cell);
/// Whether two cells are the same but for the user's letter.
bool DifferInLetterAtMost(std::string_view one, std::string_view other);
/// A letter cell without the user's letter.
std::string WithoutUserLetter(std::string_view cell);
/// A letter cell with this user's letter in place of the one that it has, if any.
std::string WithUserLetter(std::string_view cell, char letter);

}  // namespace kalvon
