// SPDX-License-Identifier: MIT
#include "crossword/installments.h"
#include "crossword/fields.h"
#include "crossword/header.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "support/crossword_text.h"

namespace kalvon {
namespace {

TEST(Installments, AreFoundByTheNameOfTheChosenFile) {
  const std::vector<std::string> folder = {"zima1002.qvm", "Zima1007.qvm", "zima1005.QVM",
                                           "zima2009.qvm", "zima1.qvm",    "kviz008.qvm",
                                           "leto1xx.qvm",  "leto1000.qvm"};
  struct Case {
    const char* name = nullptr;
    Installments expected;
  };
  const std::vector<Case> cases = {
      {"zima1002.qvm", {"zima1", 3, 2, 5}},    // Another capital is another base.
      {"zima1005.x.qvm", {"zima1", 3, 5, 5}},  // The name ends at its first dot.
      {"kviz008.qvm", {"kviz", 3, 8, 0}},      // Only a base of five characters has installments.
      {"leto1000.qvm", {"leto1", 3, 0, 0}},
      {"zima12.qvm", {"zima12", 2, 1, 1}},
      {"a1.qvm", {"a1", 1, 1, 1}},
      {".qvm", {"", 0, 1, 1}},
  };
  const auto values = [](const Installments& i) {
    return std::tuple(i.base, i.digits, i.chosen, i.last);
  };
  for (const Case& c : cases)
    EXPECT_EQ(values(FindInstallments(c.name, folder)), values(c.expected)) << c.name;
  EXPECT_THROW(FindInstallments("", folder), files::RuntimeError);
}

TEST(Installments, AreJoinedByTheLastMarkedLine) {
  constexpr int beside = join::side_by_side;
  constexpr int under = join::one_under_the_other;
  const std::vector<std::pair<std::array<int, 4>, int>> cases = {
      {{0, 0, 0, 0}, join::none}, {{1, 0, 0, 0}, beside}, {{0, 2, 0, 0}, under},
      {{1, 1, 1, 0}, beside},     {{0, 0, 9, 1}, under},  {{10, 0, 0, 0}, join::none},
      {{0, 1, 20, 0}, under},     {{0, 1, 12, 0}, beside}};
  for (const auto& [marks, joined] : cases) {
    Header header;
    std::ranges::copy(testing::HeaderLines(3, 3, marks), header.begin());
    EXPECT_EQ(JoinOf(header), joined) << ::testing::PrintToString(marks);
  }
  EXPECT_EQ(JoinOf(Header{}), join::none);
}

TEST(Installments, TakeTheirSizeFromTheThirdLine) {
  struct Case {
    const char* line;
    int width, height;
  };
  const std::vector<Case> cases = {{"Dimenzije:X= 15 Y=  4", 15, 4},
                                   {"D:X=127 Y=129", 127, 129},
                                   {"D:ab7  999", 7, 999},
                                   {"D:X=-15 Y= -1", -15, -1},
                                   {"no colon  15", 0, 15},
                                   {"D:X", 0, 0},
                                   {"", 0, 0}};
  for (const Case& c : cases) {
    Header header;
    header[2] = c.line;
    EXPECT_EQ(DimensionsOf(header).width, c.width) << c.line;
    EXPECT_EQ(DimensionsOf(header).height, c.height) << c.line;
  }
}

TEST(Numbers, AreReadAsFarAsTheyGo) {
  const std::map<std::string, int> cases = {
      {"", 0},    {"  7 ", 7}, {"005", 5}, {"3x", 3},  {"x3", 0},
      {"-4", -4}, {"+4", 4},   {"--4", 0}, {"0.9", 0}, {"99999999999", INT_MAX}};
  for (const auto& [text, value] : cases) EXPECT_EQ(DecimalValue(text), value) << text;
}

}  // namespace
}  // namespace kalvon
