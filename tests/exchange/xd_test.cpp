// SPDX-License-Identifier: MIT
#include "exchange/xd.h"

#include "exchange/puzzles.h"

namespace kalvon::exchange::testing {
namespace {

using namespace std::string_literals;

Puzzle Read(const std::string& text, const std::vector<Matter>& expected = {}) {
  EXPECT_TRUE(IsXd(text)) << text;
  Remarks remarks;
  Puzzle puzzle = ReadXd(text, remarks);
  EXPECT_EQ(Matters(remarks), expected) << text;
  return puzzle;
}

/// A file with headings.
std::string File(const std::string& headers, const std::string& grid, const std::string& clues,
                 const std::string& rest = "") {
  return "## Metadata\n\n" + headers + "\n## Grid\n\n" + grid + "\n\n## Clues\n\n" + clues + '\n' +
         rest;
}

/// The cells of a grid behind which a blank of an answer lies, as "right/below".
std::string Blanks(const Puzzle& puzzle) {
  std::string blanks;
  for (const PuzzleCell& cell : puzzle.cells) {
    const char* const both[] = {".", "r", "b", "x"};
    blanks += both[(cell.blank_right ? 1 : 0) + (cell.blank_below ? 2 : 0)];
  }
  return blanks;
}

}  // namespace

TEST(Xd, ReadsSectionsWithHeadingsAndWithout) {
  const std::string parts[] = {"Title: Mačka: uvod\nauthor: N. N.\nDate: 2026-01-01",
                               "  CAT\n  A#O\n  RUN", "A1. One ~ CAT\n\nA3. Three ~ RUN",
                               "D1. Down ~ CAR\nD2. Two ~ TON", "First line,\n\nsecond"};
  std::string by_blank_lines = "\xEF\xBB\xBF";
  for (const std::string& part : parts) by_blank_lines += part + "\r\n\r\n\r\n";
  const std::string by_headings = "## notes\n" + parts[4] + "\n##  GRID\n" + parts[1] +
                                  "\n## Metadata\n<!-- a comment\nof two lines -->\n" + parts[0] +
                                  "\n## Clues\n" + parts[2] + '\n' + parts[3];
  for (const std::string& text : {by_blank_lines, by_headings}) {
    const Puzzle puzzle = Read(text, {Matter::texts_dropped});
    EXPECT_EQ(puzzle.title, "Mačka: uvod");
    EXPECT_EQ(puzzle.author, "N. N.");
    EXPECT_EQ(puzzle.description, "First line, second");
    EXPECT_EQ(Grid(puzzle, &PuzzleCell::solution), "CAT A#O RUN");
    EXPECT_EQ(Clues(puzzle), "A1 One\nA3 Three\nD1 Down\nD2 Two\n");
    EXPECT_EQ(puzzle.clues[3].cell, (GridCell{3, 1}));
  }
}

TEST(Xd, ReadsEachKindOfCell) {
  struct Case {
    std::string headers;
    std::string grid;
    std::string cells;
    std::vector<Matter> remarks = {};
  };
  const Case cases[] = {
      {"", "A.B\nC..", "A#B C##"},
      {"", "A.B\n_#?", "A?B _#?"},
      {"Rebus: 1=LJ ❷=NJ x", "1A❷", "(LJ)A(NJ)"},
      {"Rebus: 1=O 1=A", "C1NE", "C(O/A)NE"},
      {"Rebus: ==A ?=B", "=?9", "AB9"},
      {"Special: circle", "aBć", "AB(Ć)", {Matter::circles_dropped}},
      {"Special: shaded\nRebus: q=QU", "qBC", "(QU)BC", {Matter::shades_dropped}},
      {"", "ЉC\u030C", "(Љ)(Č)"},
  };
  for (const Case& row : cases) {
    const Puzzle puzzle = Read(File(row.headers, row.grid, "A1. x"), row.remarks);
    EXPECT_EQ(Grid(puzzle, &PuzzleCell::solution), row.cells) << row.grid;
  }
}

TEST(Xd, TakesMarksOffTexts) {
  const std::pair<std::string, std::string> cases[] = {
      {"{/It/}, {*b*}, {_u_}, {-s-}, {~2~}{^3^}{={/n{*e*}st/}=}", "It, b, u, s, 23nest"},
      {"see {@{*the* notes*} | href: https://x.y/z@} or {@old|https://x@}",
       "see the* notes or old"},
      {"{!a whale | src: x; width: 1!}, {!https://x|alt|4!}, {!![http://x|b|1]!}",
       "a whale, alt, b"},
      {R"({#red|#f00|#c00#} {\~\}{\\}{\{/\} \{\} \\ a\b)", R"(red ~ {/ {} \ a b)"},
      {R"({/open {x} {\ *} |)", "{/open {x} { *} |"},
      {"A ~ B means to borrow", "A ~ B means to borrow"},
      {"", ""},
  };
  for (const auto& [marked, text] : cases) {
    for (const std::string answer : {" ~ CAT", ""}) {
      if (answer.empty() && marked.starts_with("A ~ B")) continue;
      const Puzzle puzzle =
          Read(File("", "CAT", std::string("A1. ").append(marked).append(answer)));
      EXPECT_EQ(puzzle.clues[0].text, text);
    }
  }
}

TEST(Xd, ComparesAnswersWithTheGrid) {
  struct Case {
    std::string answer;
    std::string blanks;
    bool differs = false;
  };
  const Case cases[] = {{"LJUBAV", "....."},
                        {"LJU BAV", ".r..."},
                        {"ljub-av", "..r.."},
                        {"LJ|UBAV (5)", ".....", true},
                        {"LJ+U+BAV", "rr..."},
                        {"LJUBAV (5 slova)", "....."},
                        {"LJUBAV // LJUB+AV", "..r.."},
                        {"LJUBAV ~ LJUBAX // LJUB+AV LJ+UBAX", "..r.."},
                        {"L JUBAV", ".....", true},
                        {"LJUBA", ".....", true},
                        {"LJUBAVI", ".....", true},
                        {"?", "....."},
                        {"~", ".....", true}};
  for (const auto& [answer, blanks, differs] : cases) {
    const Puzzle puzzle =
        Read(File("Rebus: 1=LJ\nSplitCharacter: +", "1UBAV", "A1. x ~ " + answer),
             differs ? std::vector{Matter::answer_differs} : std::vector<Matter>{});
    EXPECT_EQ(Blanks(puzzle), blanks) << answer;
  }
  EXPECT_EQ(Blanks(Read(File("", "A#\nB#\n?#", "D1. x ~ A BC"))), "b.....");
  Read(File("Rebus: 1=O 1=A", "C1NE", "A1. x ~ CANE ~ CONE"));
}

TEST(Xd, ReadsWhatBelongsToClues) {
  const std::string clues =
      "A1. Zvuk ~ CAT\nA1 ^Media: slon.png\nA1 ^Refs: D1\nA1 ^Hint: meow\nA1. Again\n"
      "2. Both ways\nD9. Nowhere\nD9 ^media: x.wav\nB1. Other group\nno clue\nA8 ^Refs: D1";
  const Puzzle puzzle =
      Read(File("", "CAT\nA##\nRUN", clues), std::vector(5, Matter::texts_dropped));
  EXPECT_EQ(Clues(puzzle), "A1 Zvuk (slon.png)\nA2 Both ways\nD9 Nowhere (nowhere) (x.wav)\n");
}

TEST(Xd, ReadsOurHeaders) {
  const std::string headers =
      "Language: sr-Latn\nInstallments: 3 below\nRebus: 1=LJ\nEntries: .1T .#. ABC\nDescription: d";
  const Puzzle puzzle = Read(File(headers, "CAT\nA#O\nRUN", "A1. x", "## Notes\n\nnote"));
  EXPECT_EQ(puzzle.language, "sr");
  EXPECT_EQ(puzzle.installments, 3);
  EXPECT_EQ(puzzle.join, join::one_under_the_other);
  EXPECT_EQ(puzzle.description, "d note");
  EXPECT_EQ(Grid(puzzle, &PuzzleCell::entry), "?(LJ)T ?#? ABC");
  EXPECT_EQ(Grid(Read(File("", "CAT", "A1. x", "## Start\n\nC.T")), &PuzzleCell::entry), "C?T");
}

TEST(Xd, SaysWhatADesignDraws) {
  const std::string style =
      "<style>\nO, P {\n background: circle;\n}\nS { background-light: #fff }\n"
      "I { background-image: url('data:}bar-top:;') }\nB { bar-left: true }\n</style>\n";
  const std::pair<std::string, std::vector<Matter>> cases[] = {
      {"...", {}},
      {"P.S", {Matter::circles_dropped, Matter::shades_dropped}},
      {"..I", {Matter::pictures_dropped}},
  };
  for (const auto& [grid, remarks] : cases)
    Read(File("", "CAT", "A1. x", std::string("## Design\n\n").append(style) + grid), remarks);
  Remarks remarks;
  const std::string barred = File("", "CAT", "A1. x", "## Design\n" + style + ".B.");
  EXPECT_EQ(ErrorOf([&] { ReadXd(barred, remarks); }), Matter::bars);
}

TEST(Xd, RefusesWhatBreaksTheRules) {
  const std::tuple<std::string, Matter, std::string> cases[] = {
      {File("", "CAT\nCA", "A1. x"), Matter::damaged_line, "7: CA"},
      {File("", "C T", "A1. x"), Matter::damaged_line, "6: C T"},
      {File("Installments: 3", "CAT", "A1. x"), Matter::damaged_line, "3: Installments: 3"},
      {File("Entries: AB", "CAT", "A1. x"), Matter::damaged_line, "3: Entries: AB"},
      {File("Entries: C\t.", "CAT", "A1. x"), Matter::damaged_line, "3: Entries: C\t."},
      {File("Title: \xE7", "CAT", "A1. x"), Matter::damaged_line, "3: UTF-8"},
      {File("Form: barred", "CAT", "A1. x"), Matter::bars, ""},
      {File("", "", "A1. x"), Matter::no_section, "## Grid"},
      {File("", std::string(16384, 'A'), "A1. x"), Matter::too_many_cells, ""},
      {std::string(largest_file, '\n'), Matter::too_long, ""}};
  for (const auto& [text, matter, detail] : cases) {
    try {
      Remarks remarks;
      ReadXd(text, remarks);
      ADD_FAILURE() << text;
    } catch (const ConversionError& error) {
      EXPECT_EQ(error.Why().matter, matter);
      EXPECT_EQ(error.Why().detail, detail);
    }
  }
  for (const std::string& other : {""s, "A1. x"s, "Title: x\n\nText 1."s, "Title: x\nA1. \0"s})
    EXPECT_FALSE(IsXd(other)) << other;
}

TEST(Xd, ReadsWhatItHasWritten) {
  std::mt19937 random(1);
  for (int i = 0; i < 500; ++i) {
    Puzzle puzzle = RandomPuzzle(random, true);
    puzzle.language = i % 2 == 0 ? "sr" : "";
    if (i % 3 == 0) {
      puzzle.installments = 12;
      puzzle.join = join::side_by_side;
    }
    puzzle.clues.push_back({.direction = direction::down, .number = "999", .text = "x"});
    for (const PuzzleClue& clue : puzzle.clues) {
      const bool across = clue.direction == direction::across;
      const GridCell next = {clue.cell.x + (across ? 1 : 0), clue.cell.y + (across ? 0 : 1)};
      if (clue.cell == GridCell{} || !puzzle.HasLetter(next) || random() % 3 != 0) continue;
      (across ? puzzle.At(clue.cell).blank_right : puzzle.At(clue.cell).blank_below) = true;
    }
    Remarks remarks;
    const std::string text = WriteXd(puzzle, remarks);
    const bool lost = !remarks.List().empty();
    EXPECT_TRUE(IsXd(text));
    Puzzle read = ReadXd(text, remarks);
    for (std::size_t cell = 0; lost && cell < read.cells.size(); ++cell) {
      read.cells[cell].blank_right = puzzle.cells[cell].blank_right;
      read.cells[cell].blank_below = puzzle.cells[cell].blank_below;
    }
    EXPECT_EQ(Matters(remarks), std::vector(lost ? 1 : 0, Matter::blanks_dropped)) << text;
    EXPECT_EQ(read, puzzle) << text;
    if (HasFailure()) break;
  }
}

}  // namespace kalvon::exchange::testing
