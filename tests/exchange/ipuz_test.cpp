// SPDX-License-Identifier: MIT
#include "exchange/ipuz.h"

#include <gtest/gtest.h>

#include "crossword/direction.h"
#include "exchange/puzzle_text.h"

namespace kalvon::exchange {
namespace {

const Format& Ipuz() { return *FormatOfEnding("ipuz"); }

constexpr std::string_view usual_puzzle = R"([[1,2,"#"],[3,0,4],[null,5,0]])";
constexpr std::string_view usual_solution = R"([["C","A","#"],["B","O","T"],[null,"L","O"]])";
constexpr std::string_view usual_clues =
    R"({"Across":[[1,"a"],[3,"b"],[5,"c"]],"Down":[[1,"d"],[2,"e"],[4,"f"]]})";
const std::string usual_shown = "1C2A#/3BO4T/.5LO; 1A11 a; 3A12 b; 5A23 c; 1D11 d; 2D21 e; 4D32 f";

/// A file of 3 by 3 cells; what is empty stays as usual.
std::string File(std::string_view puzzle = "", std::string_view solution = "",
                 std::string_view clues = "", const std::string& more = "") {
  const auto part = [](std::string_view given, std::string_view usual) {
    return std::string(given.empty() ? usual : given);
  };
  return R"({"version":"http://ipuz.org/v2","dimensions":{"width":3,"height":3},"puzzle":)" +
         part(puzzle, usual_puzzle) + R"(,"solution":)" + part(solution, usual_solution) +
         R"(,"clues":)" + part(clues, usual_clues) + more + "}";
}

TEST(IpuzTest, ReadsWhatFilesHold) {
  const std::string grid = "1C2A#/3BO4T/.5LO";
  const std::string full = R"([[1,2,3],[4,0,0],[5,0,0]])";
  const std::string letters = R"([["A","B","C"],["D","E","F"],["G","H","I"]])";
  const struct {
    std::string name;
    std::string bytes;
    std::string shown;
  } rows[] = {
      {"plain", File(), usual_shown},
      {"called back", "\xEF\xBB\xBF\n ipuz (" + File() + ");\n", usual_shown},
      {"cells as objects",
       File(R"([[{"cell":1,"value":"X"},{"cell":"2"},{"cell":"#"}],["3",{},4],[null,5,0]])",
            R"([[{"value":"C"},{"value":"A"},"#"],["B","O",{"cell":"T"}],[null,"L","O"]])"),
       "1C(X)2A#/3BO4T/.5LO" + usual_shown.substr(grid.size())},
      {"other signs",
       File(R"([[1,2,"X"],[3,"_",4],[null,5,"_"]])",
            R"([["C","A","X"],["#","O","T"],[null,"L","O"]])", "", R"(,"block":"X","empty":"_")"),
       "1C2A#/3#O4T/.5LO" + usual_shown.substr(grid.size())},
      {"saved, rebus, digits, two letters",
       File("", R"([["CAT",7,"#"],["é",{"Across":"O","Down":"P"},"LJ"],[null,"L","O"]])", "",
            R"(,"saved":[["Z",0,"#"],["",null,"ž"],[null,"",{"value":"Ш"}]])"),
       "1CAT(Z)27#/3éO/P4LJ(ž)/.5LO(Ш)" + usual_shown.substr(grid.size())},
      {"no solution", File("", "null"), "1*2*#/3**4*/.5**" + usual_shown.substr(grid.size())},
      {"zero-indexed",
       File(R"([["0",1,"#"],[2,0,3],[null,4,0]])", "",
            R"({"Across":[[0,"a"],[2,"b"],[4,"c"]],"Down":[[0,"d"],[1,"e"],[3,"f"]]})"),
       "C1A#/2BO3T/.4LO; 0A11 a; 2A12 b; 4A23 c; 0D11 d; 1D21 e; 3D32 f"},
      {"no numbers in grid and clues",
       File(R"([[0,0,"#"],[0,0,0],[null,0,0]])", "",
            R"({"Across:Vodoravno":["a",{"clue":"b"}],"Down":[[2,"e"],"f"]})"),
       "CA#/BOT/.LO; A00 a; A00 b; 2D21 e; D00 f"},
      {"clues of all shapes",
       File(
           "", "",
           R"({"Down":["d","e",{"numbers":[4,9],"clue":"f"}],"across":[{"number":1,"clue":"<i>a</i>&amp;&scaron;"},{"label":"5","clue":"c"},[9,"lost"],7,null,{}]})"),
       grid + "; 1A11 a&š; 5A23 c; 9A00 lost; A00 7; A00 ; A00 ; D11 d; D21 e; 4D32 f"},
      {"cells from 1",
       File(
           "", "",
           R"({"Clues":[{"number":1,"clue":"a","cells":[[1,2],[2,2],[3,2]]},{"clue":"d","cells":[[3,2],[3,3]]}]})"),
       grid + "; 1A12 a; D32 d"},
      {"cells from 0",
       File(
           "", "",
           R"({"Clues":[{"number":1,"clue":"a","cells":[[0,1],[1,1],[2,1]]},{"clue":"d","cells":[[2,1],[2,2]]}]})"),
       grid + "; 1A12 a; D32 d"},
      {"a clue for two words",
       File(
           "", "",
           R"({"Across":[{"number":1,"clue":"a","cells":[[1,1],[2,1],[1,2],[2,2],[3,2]],"enumeration":"2,1-2"}]})"),
       grid + "; 1A11 a"},
      {"enumerations",
       File(
           full, letters,
           R"({"Across":[{"number":1,"enumeration":"1,2"},{"number":4,"enumeration":"1-2"},{"number":5,"enumeration":"2 2"}],"Down":[{"number":1,"enumeration":"2 1"},{"number":2,"enumeration":3}]})"),
       "1A|2B3C/4D_EF/5GHI; 1A11 ; 4A12 ; 5A13 ; 1D11 ; 2D21 "},
      {"styles",
       File(
           R"([[{"cell":1,"style":{"shapebg":"circle","color":"f00"}},2,"#"],[3,{"style":{"shapebg":"circle","imagebg":"x.png"}},4],[null,{"cell":5,"style":{"barred":"L"}},0]])"),
       usual_shown +
           "\nCircles in cells were left out (2×)\nColours of cells were left out\nPictures behind "
           "cells were left out"},
      {"bars", File(R"([[1,{"cell":2,"style":{"barred":"LT"}},"#"],[3,0,4],[null,5,0]])"),
       "The words are divided by bars, which this program cannot show"},
      {"part of a run", File("", "", R"({"Across":[{"number":3,"cells":[[1,2],[2,2]]}]})"),
       "The words are divided by bars, which this program cannot show"},
      {"off the grid",
       File("", "", R"({"Across":[{"number":3,"cells":[[2147483647,2],[-2147483648,2]]}]})"),
       "The file is damaged: 3"},
      {"bent", File("", "", R"({"Across":[{"number":3,"cells":[[1,2],[2,2],[2,3]]}]})"),
       "The word 3 leaves its straight line"},
      {"backwards", File("", "", R"({"Across":[{"number":3,"cells":[[3,2],[2,2],[1,2]]}]})"),
       "The word 3 leaves its straight line"},
      {"other kind", File("", "", "", R"(,"kind":["http://ipuz.org/sudoku#1"])"),
       "It is no plain crossword: sudoku"},
      {"diagramless", File("", "", "", R"(,"kind":"http://ipuz.org/crossword/diagramless#1")"),
       "It is no plain crossword: diagramless"},
      {"diagramless by its grid", File("[[0,0,0],[0,0,0],[0,0,0]]"),
       "It is no plain crossword: diagramless"},
  };
  for (const auto& row : rows) {
    EXPECT_TRUE(IsIpuz(row.bytes)) << row.name;
    EXPECT_EQ(ReadAs(Ipuz(), row.bytes), row.shown) << row.name;
  }
}

TEST(IpuzTest, ReadsTheTextsAboutIt) {
  Remarks remarks;
  const Puzzle puzzle = ReadIpuz(
      File(
          "", "", "",
          R"(,"title":"<b>Zima</b>\n&amp; sneg","author":7,"copyright":"© M","intro":"a","notes":"b","org.libipuz:locale":"sr_RS")"),
      remarks);
  EXPECT_EQ(puzzle.title, "Zima & sneg");
  EXPECT_EQ(puzzle.author, "7");
  EXPECT_EQ(puzzle.copyright, "© M");
  EXPECT_EQ(puzzle.description, "a b");
  EXPECT_EQ(puzzle.language, "sr");
}

TEST(IpuzTest, RefusesOrPassesOverBadInput) {
  const auto grid_of = [](const std::string& dimensions) {
    return R"({"a":"ipuz.org","puzzle":[[1]],"dimensions":)" + dimensions + "}";
  };
  const std::string text(std::size_t{2} << 20, 'x');
  const std::pair<std::string, std::string> rows[] = {
      {grid_of("7"), "The file is damaged: dimensions"},
      {R"({"dimensions":{"width":1,"height":1}})", "The file is damaged: puzzle"},
      {grid_of("{}"), "The crossword has no cells"},
      {grid_of(R"({"width":-1,"height":1})"), "The crossword has no cells"},
      {grid_of(R"({"width":1e9,"height":1e9})"), "The crossword has more than 16383 cells"},
      {grid_of(R"({"width":2,"height":"2"})"), "1*./.."},
      {R"({"dimensions":{"width":1,"height":1},"puzzle":{},"clues":[{}],"title":[],"kind":{}})",
       "."},
      {File().substr(0, 99), "The file is damaged: JSON, 98"},
      {std::string(100000, '['), "The file is damaged: JSON, 1025"},
      {std::string(1000001, '['), "The file is larger than any crossword"},
      {R"({"title":")" + text + R"("})", "The file is larger than any crossword"},
      {std::string(largest_file + 1, ' '), "The file is larger than any crossword"},
      {"ipuz", "The file is damaged: JSON, 0"},
  };
  for (const auto& [bytes, shown] : rows)
    EXPECT_EQ(ReadAs(Ipuz(), bytes), shown) << bytes.substr(0, 99);
  for (const char* other : {"", "ipuz", "{}", "ACROSS&DOWN ipuz.org", "[\"ipuz.org\"]"})
    EXPECT_FALSE(IsIpuz(other)) << other;
}

TEST(IpuzTest, WritesWhatItReads) {
  std::mt19937 random(14);
  for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i)
    ExpectRoundTrip(Ipuz(), RandomPuzzle(random));
}

TEST(IpuzTest, NumbersAndTellsWhatItDrops) {
  Puzzle puzzle = EmptyPuzzle(2, 2);
  puzzle.At({1, 2}).blank_right = true;
  puzzle.clues = {{.direction = direction::across,
                   .cell = {1, 1},
                   .number = "1",
                   .text = "ovca",
                   .medium = "ovca.wav"}};
  Remarks remarks;
  EXPECT_EQ(ReadAs(Ipuz(), WriteIpuz(puzzle, remarks)), "1*2*/3**; 1A11 ovca");
  ASSERT_EQ(remarks.List().size(), 2U);
  EXPECT_EQ(remarks.List()[0].matter, Matter::medium_dropped);
  EXPECT_EQ(remarks.List()[1].matter, Matter::blanks_dropped);
}

}  // namespace
}  // namespace kalvon::exchange
