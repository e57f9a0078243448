// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "crossword/cell.h"
#include "crossword/crossword.h"
#include "crossword/header.h"
#include "crossword/installments.h"
#include "support/crossword_text.h"

namespace kalvon::testing {

TEST(Cell, CarriesTheUsersLetterBehindTheSolution) {
  using Row = std::array<const char*, 4>;
  for (const auto& [cell, letter, without, with_l] :
       {Row{"K$0$1$0$00", "", "K$0$1$0$00", "KL$0$1$0$00"},
        {"KC$0$1$0$00", "C", "K$0$1$0$00", "KL$0$1$0$00"},
        {"KK$9$$x$21", "K", "K$9$$x$21", "KL$9$$x$21"},
        {"K", "", "K", "KL"},
        {"KCX$0", "C", "K$0", "KL$0"}}) {
    SCOPED_TRACE(cell);
    EXPECT_TRUE(IsLetterCell(cell));
    EXPECT_EQ(UserLetter(cell), letter);
    EXPECT_EQ(WithoutUserLetter(cell), without);
    EXPECT_EQ(WithUserLetter(cell, 'L'), with_l);
  }
  for (const char* blocked : {"", "$1$", "$"}) EXPECT_FALSE(IsLetterCell(blocked)) << blocked;
}

TEST(Table, KnowsItsBoundsAndTheLimitsOfNumbers) {
  Table<std::string, 2> table(std::array{IndexRange{0, 3}, IndexRange{1, 2}});
  const Table<std::string, 2> fresh = table;
  table.Mutable(0, 1) = "first";
  table.Mutable(3, 2) = "last";
  EXPECT_EQ(fresh(3, 2) + table(0, 1) + table(3, 2) + table(1, 2), "firstlast");
  EXPECT_FALSE(table == fresh);
  table.Mutable(0, 1) = table.Mutable(3, 2) = "";
  EXPECT_TRUE(table == fresh && fresh == table) << "written or not, both are empty";
  for (const auto& [n, c] : {std::pair{-1, 1}, {4, 1}, {0, 0}, {0, 3}}) {
    const auto write = [&, n = n, c = c] { table.Mutable(n, c) = "x"; };
    EXPECT_EQ(files::pass_over(write), files::error::subscript_out_of_range) << n << c;
  }
  Int16 number = -32768;
  EXPECT_EQ(files::pass_over([&] { number = 32768; }), files::error::overflow);
}

TEST(Installments, AreFoundByTheNameOfTheChosenFile) {
  const std::vector<std::string> folder = {"zima1002.qvm", "Zima1007.qvm", "zima1005.QVM",
                                           "zima2009.qvm", "leto1xx.qvm",  "leto1000.qvm"};
  using Row = std::tuple<const char*, std::string, int, int, int>;
  for (const auto& [name, base, digits, chosen, last] :
       {Row{"zima1002.qvm", "zima1", 3, 2, 5},  // Other capitals, another base.
        {"zima1005.x.qvm", "zima1", 3, 5, 5},
        {"kviz008.qvm", "kviz008", 0, 1, 1},    // No number without a base of five characters,
        {"leto1000.qvm", "leto1000", 0, 1, 1},  // or of 0 alone.
        {".qvm", "", 0, 1, 1}}) {
    const Installments found = FindInstallments(name, folder);
    EXPECT_EQ(std::tuple(found.base, found.digits, found.chosen, found.last),
              std::tuple(base, digits, chosen, last))
        << name;
  }
  EXPECT_THROW(FindInstallments("zima", folder), files::RuntimeError);
}

TEST(Header, TellsSizeAndJoin) {
  using Marks = std::pair<std::array<int, 4>, int>;
  for (const auto& [marks, joined] : {Marks{{0, 0, 0, 0}, join::none},
                                      {{1, 0, 0, 0}, join::side_by_side},
                                      {{0, 2, 0, 0}, join::one_under_the_other},
                                      {{0, 0, 9, 1}, join::one_under_the_other},
                                      {{10, 0, 0, 0}, join::none},
                                      {{0, 1, 12, 0}, join::side_by_side}}) {
    Header header;
    std::ranges::copy(HeaderLines(3, 3, marks), header.begin());
    EXPECT_EQ(JoinOf(header), joined) << ::testing::PrintToString(marks);
  }
  using Size = std::tuple<const char*, int, int>;
  for (const auto& [line, width, height] : {Size{"Dimenzije:X= 15 Y=  4", 15, 4},
                                            {"D:ab7  999", 7, 999},
                                            {"D:X=-15 Y= -1", -15, -1},
                                            {"D:X", 0, 0}}) {
    const auto [found_width, found_height] = DimensionsOf({"", "", line});
    EXPECT_EQ(std::pair(found_width, found_height), std::pair(width, height)) << line;
  }
}

}  // namespace kalvon::testing
