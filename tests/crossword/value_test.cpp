// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <tuple>
#include <vector>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/crossword.h"
#include "crossword/direction.h"
#include "crossword/fields.h"
#include "crossword/header.h"
#include "crossword/installments.h"
#include "support/crossword_text.h"

namespace kalvon::testing {
namespace {

TEST(Cell, CarriesTheUsersLetterBehindTheSolution) {
  struct Row {
    const char* cell;
    const char* letter;
    const char* without;
    const char* with_l;
    bool wrong;
  };
  for (const Row& row : {Row{"K$0$1$0$00", "", "K$0$1$0$00", "KL$0$1$0$00", false},
                         {"KC$0$1$0$00", "C", "K$0$1$0$00", "KL$0$1$0$00", true},
                         {"KK$9$$x$21", "K", "K$9$$x$21", "KL$9$$x$21", false},
                         {"K", "", "K", "KL", false},
                         {"KCX$0", "C", "K$0", "KL$0", false}}) {
    SCOPED_TRACE(row.cell);
    EXPECT_TRUE(IsLetterCell(row.cell));
    EXPECT_EQ(UserLetter(row.cell), row.letter);
    EXPECT_EQ(WithoutUserLetter(row.cell), row.without);
    EXPECT_EQ(WithUserLetter(row.cell, 'L'), row.with_l);
    EXPECT_EQ(IsWrong(row.cell), row.wrong);
  }
  for (const char* blocked : {"", "$1$", "$"}) EXPECT_FALSE(IsLetterCell(blocked)) << blocked;
}

TEST(Clue, IsReadFromItsField) {
  struct Row {
    const char* attributes;
    int direction;
    const char* media;
    const char* text;
  };
  constexpr int across = direction::across;
  constexpr int down = direction::down;
  for (const Row& row : {Row{"011$a$b$c$Prvo$Drugo$x", across, "", "Prvo"},
                         {"011$a$b$c$Prvo$Drugo$x", down, "", "Drugo"},
                         {"010$$$$/kit.bmp/Kit/2$$", across, "kit.bmp", "Kit/2"},
                         {"010$$$$/kit$$", across, "", "/kit"},
                         {"010$$$$Otvoreno", across, "", "Otvoreno"},
                         {"0", down, "", ""}}) {
    const Clue clue = ReadClue(row.attributes, row.direction);
    EXPECT_EQ(std::tuple(clue.media, clue.text), std::tuple(row.media, row.text)) << row.attributes;
  }
}

TEST(Table, KnowsItsBoundsAndTheLimitsOfNumbers) {
  Table<std::string, 2> table(std::array{IndexRange{0, 3}, IndexRange{1, 2}});
  const Table<std::string, 2> fresh = table;
  EXPECT_EQ(table(3, 2), "");
  table.Mutable(0, 1) = "first";
  table.Mutable(3, 2) = "last";
  EXPECT_EQ(table(0, 1) + table(3, 2) + table(1, 2), "firstlast");
  EXPECT_FALSE(table == fresh);
  table.Mutable(0, 1) = table.Mutable(3, 2) = "";
  EXPECT_TRUE(table == fresh && fresh == table) << "written or not, both are empty";
  for (const auto& [n, c] : {std::pair{-1, 1}, {4, 1}, {0, 0}, {0, 3}}) {
    const auto write = [&, n = n, c = c] { table.Mutable(n, c) = "x"; };
    EXPECT_EQ(files::pass_over(write), files::error::subscript_out_of_range) << n << c;
  }
  Int16 number;
  EXPECT_EQ(files::pass_over([&] { number = 32768; }), files::error::overflow);
  EXPECT_EQ(files::pass_over([&] { number = -32768; }), 0);
}

TEST(Installments, AreFoundByTheNameOfTheChosenFile) {
  const std::vector<std::string> folder = {"zima1002.qvm", "Zima1007.qvm", "zima1005.QVM",
                                           "zima2009.qvm", "leto1xx.qvm",  "leto1000.qvm"};
  struct Row {
    const char* name;
    Installments expected;
  };
  for (const Row& row :
       {Row{"zima1002.qvm", {"zima1", 3, 2, 5}},  // Other capitals, another base.
        Row{"zima1005.x.qvm", {"zima1", 3, 5, 5}}, Row{"leto1000.qvm", {"leto1", 3, 0, 0}},
        Row{"zima12.qvm", {"zima12", 2, 1, 1}}, Row{".qvm", {"", 0, 1, 1}}}) {
    const auto values = [](const Installments& i) {
      return std::tuple(i.base, i.digits, i.chosen, i.last);
    };
    EXPECT_EQ(values(FindInstallments(row.name, folder)), values(row.expected)) << row.name;
  }
  EXPECT_THROW(FindInstallments("zima", folder), files::RuntimeError);
  EXPECT_EQ(InstallmentName("zima1", 7, "qvd"), "zima1007.qvd");
}

TEST(Header, TellsSizeAndJoin) {
  constexpr int beside = join::side_by_side;
  constexpr int under = join::one_under_the_other;
  struct Join {
    std::array<int, 4> marks;
    int joined;
  };
  for (const auto& [marks, joined] : {Join{{0, 0, 0, 0}, join::none},
                                      {{1, 0, 0, 0}, beside},
                                      {{0, 2, 0, 0}, under},
                                      {{1, 1, 1, 0}, beside},
                                      {{0, 0, 9, 1}, under},
                                      {{10, 0, 0, 0}, join::none},
                                      {{0, 1, 12, 0}, beside}}) {
    Header header;
    std::ranges::copy(HeaderLines(3, 3, marks), header.begin());
    EXPECT_EQ(JoinOf(header), joined) << ::testing::PrintToString(marks);
  }
  struct Size {
    const char* line;
    int width, height;
  };
  for (const Size& size : {Size{"Dimenzije:X= 15 Y=  4", 15, 4},
                           {"D:ab7  999", 7, 999},
                           {"D:X=-15 Y= -1", -15, -1},
                           {"no colon  15", 0, 15},
                           {"D:X", 0, 0}}) {
    Header header;
    header[2] = size.line;
    EXPECT_EQ(DimensionsOf(header).width, size.width) << size.line;
    EXPECT_EQ(DimensionsOf(header).height, size.height) << size.line;
  }
}

TEST(Number, IsReadAsFarAsItGoes) {
  const std::pair<const char*, int> rows[] = {
      {"", 0},    {"  7 ", 7}, {"005", 5}, {"3x", 3},  {"x3", 0},
      {"-4", -4}, {"+4", 4},   {"--4", 0}, {"0.9", 0}, {"99999999999", INT_MAX}};
  for (const auto& [text, value] : rows) EXPECT_EQ(DecimalValue(text), value) << text;
}

}  // namespace
}  // namespace kalvon::testing
