// SPDX-License-Identifier: MIT
#include "exchange/puz.h"

#include <algorithm>

#include "exchange/puzzles.h"

namespace kalvon::exchange::testing {
namespace {

using namespace std::string_literals;

/// The bytes of "C(LJ)T / A#O / RUN", summed by a script of its own.
const std::string example =
    "\037BACROSS&DOWN\000\000RI\336\0222\023\247~@2.0\000\000\000\000\000\000\000\000\000\000"
    "\000\000\000\000\000\000\000\003\003\004\000\001\000\000\000CLTA.ORUNCN--.----Ma\304\215"
    "ka\000Author\000\0001 a\0001 d\0002 d\0003 a\000Note\000GRBS\011\000\000\002\000\001\000"
    "\000\000\000\000\000\000\000RTBL\006\000~@ 0:LJ;\000RUSR\013\000\000q\000NJ\000\000\000"
    "\000\000\000\000\000\000"s;

/// A file as it is laid out, with checksums that are mostly wrong.
struct Bytes {
  std::string version = "1.3\0"s;
  int width = 3;
  int clues = 4;
  std::string kind = "\1\0"s;
  std::string lock = "\0\0"s;
  std::string solution = "CATA#ORUN";
  std::string state = "---------";
  std::vector<std::string> texts = {"Title", "Author", "(c)", "1 a", "1 d", "2 d", "3 a", "Note"};
  std::string sections = {};

  [[nodiscard]] std::string Make() const {
    std::string bytes = std::string(2, '\0') + "ACROSS&DOWN\0"s + std::string(10, '\0') + version;
    bytes.resize(0x2C, '\0');
    bytes += {static_cast<char>(width), 3, static_cast<char>(clues), 0};
    bytes += kind + lock;
    for (std::string board : {solution, state}) {
      std::ranges::replace(board, '#', '.');
      bytes += board;
    }
    for (const std::string& text : texts) bytes += text + '\0';
    return bytes + sections;
  }
};

std::string Section(const std::string& name, const std::string& content) {
  const auto length = static_cast<char>(content.size());
  return name + length + "\0\0\0"s + content + '\0';
}

Puzzle Read(const Bytes& bytes, const std::vector<Matter>& expected = {Matter::wrong_checksum}) {
  Remarks remarks;
  Puzzle puzzle = ReadPuz(bytes.Make(), remarks);
  EXPECT_EQ(Matters(remarks), expected);
  return puzzle;
}

}  // namespace

TEST(Puz, ReadsWhatAnotherProgramHasSummed) {
  for (const std::string& before : {""s, "crossword.puz\r\n"s}) {
    Remarks remarks;
    ASSERT_TRUE(IsPuz(before + example));
    const Puzzle puzzle = ReadPuz(before + example, remarks);
    EXPECT_TRUE(remarks.List().empty());
    EXPECT_EQ(puzzle.title, "Mačka");
    EXPECT_EQ(puzzle.description, "Note");
    EXPECT_EQ(Grid(puzzle, &PuzzleCell::solution), "C(LJ)T A#O RUN");
    EXPECT_EQ(Grid(puzzle, &PuzzleCell::entry), "C(NJ)? ?#? ???");
    EXPECT_EQ(Clues(puzzle), "A1 1 a\nA3 3 a\nD1 1 d\nD2 2 d\n");
    EXPECT_EQ(WritePuz(puzzle, remarks), example);
  }
}

TEST(Puz, ReadsEachVersionAndWhatIsMissing) {
  Bytes bytes;
  bytes.texts[0] = "\x93Gar\xE7on\x94\n &amp;";
  EXPECT_EQ(Read(bytes).title, "“Garçon” &amp;");
  bytes.version = "2.0\0"s;
  bytes.texts[0] = "Слон";
  EXPECT_EQ(Read(bytes).title, "Слон");
  bytes.texts[0] = "Gar\xE7on";
  EXPECT_EQ(Read(bytes).title, "Garçon");

  bytes.texts.pop_back();
  EXPECT_EQ(Read(bytes).description, "");
  for (const std::string solution : {"XXXX#XXXX", "---- ----", "XX-X:XXX-"}) {
    bytes.solution = solution;
    bytes.state = "C--------";
    const Puzzle puzzle = Read(bytes);
    EXPECT_EQ(Grid(puzzle, &PuzzleCell::solution),
              solution[4] == ' ' ? "??? ??? ???" : "??? ?#? ???");
    EXPECT_EQ(puzzle.cells[0].entry, "C");
  }
  bytes.solution = "CATA#ORUN";
  bytes.lock = "\2\0"s;
  EXPECT_EQ(Grid(Read(bytes), &PuzzleCell::solution), "??? ?#? ???");
}

TEST(Puz, ReadsSections) {
  Bytes bytes;
  bytes.sections = Section("LTIM", "42,1") + Section("GRBS", "\0\2\0\0\0\0\0\0\7"s) +
                   Section("RTBL", " 1:HEART;17:x:y;junk;") +
                   Section("RUSR", "\0LJ\0\0\0\0\0\0\0\0"s) +
                   Section("GEXT", "\x80\0\0\0\0\0\0\0\x40"s) + "\r\n";
  const Puzzle puzzle = Read(bytes, {Matter::wrong_checksum, Matter::circles_dropped});
  EXPECT_EQ(Grid(puzzle, &PuzzleCell::solution), "C(HEART)T A#O RUN");
  EXPECT_EQ(Grid(puzzle, &PuzzleCell::entry), "?(LJ)? ?#? ???");

  bytes.sections = Section("GRBS", "\1") + "RTBL\xFF\xFF\0\0 1:A;"s;
  EXPECT_EQ(
      Grid(Read(bytes, {Matter::texts_dropped, Matter::wrong_checksum, Matter::texts_dropped}),
           &PuzzleCell::solution),
      "CAT A#O RUN");
}

TEST(Puz, MatchesCluesToWordsAsFarAsThereAreSome) {
  Bytes bytes;
  bytes.clues = 2;
  bytes.texts = {"", "", "", "1 a", "1 d", ""};
  EXPECT_EQ(Clues(Read(bytes)), "A1 1 a\nD1 1 d\n");
  bytes.clues = 5;
  bytes.texts = {"", "", "", "1 a", "1 d", "2 d", "3 a", "4 d", ""};
  const Puzzle puzzle = Read(bytes, {Matter::wrong_checksum, Matter::clue_without_word});
  EXPECT_EQ(Clues(puzzle), "A1 1 a\nA3 3 a\nD1 1 d\nD2 2 d\n");
}

TEST(Puz, RefusesOtherFiles) {
  Bytes locked;
  locked.lock = "\4\0"s;
  Bytes diagramless;
  diagramless.kind = "\1\4"s;
  Bytes flat;
  flat.width = 0;
  Bytes wide;
  wide.width = 255;
  Bytes many_clues;
  many_clues.clues = 200;
  const std::pair<std::string, Matter> cases[] = {
      {locked.Make(), Matter::scrambled},
      {diagramless.Make(), Matter::other_kind},
      {flat.Make(), Matter::no_cells},
      {wide.Make(), Matter::ends_early},
      {many_clues.Make(), Matter::ends_early},
      {Bytes().Make().substr(0, 0x20), Matter::ends_early},
      {"\0\0ACROSS&DOWN"s, Matter::unknown_format},
      {std::string(largest_file + 1, 'x'), Matter::too_long}};
  Remarks remarks;
  for (const auto& row : cases)
    EXPECT_EQ(ErrorOf([&] { ReadPuz(row.first, remarks); }), row.second) << row.first.substr(0, 80);
  EXPECT_FALSE(IsPuz("ACROSS&DOWN\0"s));
  EXPECT_EQ(ErrorOf([&] { WritePuz(EmptyPuzzle(256, 2), remarks); }), Matter::too_large_to_write);
}

TEST(Puz, SaysWhatItCannotWrite) {
  Puzzle puzzle = EmptyPuzzle(3, 1);
  puzzle.cells[0] = {.solution = "Ч", .blank_right = true};
  puzzle.cells[1] = {.solution = "dž;", .entry = "Њ"};
  puzzle.cells[2] = {.kind = CellKind::empty};
  puzzle.clues = {{.direction = direction::across, .cell = {1, 1}, .medium = "slon.png"},
                  {.direction = direction::down, .number = "7", .text = "Nowhere"}};
  Remarks remarks;
  const std::string bytes = WritePuz(puzzle, remarks);
  EXPECT_EQ(Matters(remarks),
            (std::vector{Matter::holes_filled, Matter::blanks_dropped, Matter::medium_dropped,
                         Matter::clue_without_word, Matter::letters_simplified,
                         Matter::letters_simplified}));
  EXPECT_EQ(bytes.substr(0x18, 3), "2.0");
  EXPECT_EQ(bytes.substr(0x34, 6), "CD.-N.");
  const Puzzle read = ReadPuz(bytes, remarks);
  EXPECT_EQ(Grid(read, &PuzzleCell::solution), "(Ч)(dž)#");
  EXPECT_EQ(Grid(read, &PuzzleCell::entry), "?(Њ)#");
}

TEST(Puz, ReadsWhatItHasWritten) {
  std::mt19937 random(1);
  for (int i = 0; i < 300; ++i) {
    const Puzzle puzzle = RandomPuzzle(random, false);
    Remarks written;
    Remarks read;
    EXPECT_EQ(ReadPuz(WritePuz(puzzle, written), read), puzzle) << i;
    EXPECT_TRUE(read.List().empty());
  }
}

}  // namespace kalvon::exchange::testing
