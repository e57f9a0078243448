// SPDX-License-Identifier: MIT
#include "document/crossword_state.h"
#include "crossword/cell.h"
#include "crossword/clue.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace kalvon {
namespace {

TEST(CellString, CarriesTheUsersLetterBehindTheSolution) {
  struct Case {
    const char* cell;
    const char* letter;
    const char* without;
    const char* with_l;
  };
  const std::vector<Case> cases = {
      {"K$0$1$0$00", "", "K$0$1$0$00", "KL$0$1$0$00"},
      {"KC$0$1$0$00", "C", "K$0$1$0$00", "KL$0$1$0$00"},
      {"KK$9$$x$21", "K", "K$9$$x$21", "KL$9$$x$21"},
      {"K", "", "K", "KL"},
      {"KCX$0", "C", "K$0", "KL$0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.cell);
    EXPECT_TRUE(IsLetterCell(c.cell));
    EXPECT_EQ(UserLetter(c.cell), c.letter);
    EXPECT_EQ(WithoutUserLetter(c.cell), c.without);
    EXPECT_EQ(WithUserLetter(c.cell, 'L'), c.with_l);
  }
  for (const char* blocked : {"", "$1$", "$2$", "$"})
    EXPECT_FALSE(IsLetterCell(blocked)) << blocked;
}

TEST(Limits, RaiseTheErrorsOfTheProgram) {
  Table<std::string, 2> table(std::array{IndexRange{0, 3}, IndexRange{1, 2}});
  const Table<std::string, 2>& reading = table;
  EXPECT_EQ(reading(3, 2), "");
  table.Mutable(0, 1) = "first";
  table.Mutable(3, 2) = "last";
  EXPECT_EQ(reading(0, 1) + reading(3, 2) + reading(1, 2), "firstlast");
  constexpr int out_of_range = files::error::subscript_out_of_range;
  for (const auto& [n, c] : {std::pair{-1, 1}, {4, 1}, {0, 0}, {0, 3}}) {
    EXPECT_EQ(files::pass_over([&, n = n, c = c] { table.Mutable(n, c) = "x"; }), out_of_range)
        << n << c;
  }
  EXPECT_EQ(files::pass_over([] { glavni.smer = 32768; }), files::error::overflow);
}

}  // namespace
}  // namespace kalvon
