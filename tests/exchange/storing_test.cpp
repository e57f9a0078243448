// SPDX-License-Identifier: MIT
#include "exchange/storing.h"

#include <algorithm>
#include <random>

#include "crossword/clue.h"
#include "crossword/crossword_folder.h"
#include "crossword/direction.h"
#include "exchange/clue_text.h"
#include "exchange/qvm.h"
#include "files/host_paths.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange::testing {

using ::kalvon::testing::CrosswordFolder;

/// A puzzle of one row of letters, with a clue to its word.
static Puzzle Row(const std::vector<std::string>& letters, const std::string& clue = "Mačka?") {
  Puzzle puzzle = EmptyPuzzle(static_cast<int>(letters.size()), 1);
  for (std::size_t i = 0; i < letters.size(); ++i) puzzle.cells[i].solution = letters[i];
  puzzle.clues = {
      {.direction = direction::across, .cell = {1, 1}, .number = "1", .text = clue, .medium = ""}};
  return puzzle;
}

/// The stored letters of a crossword's first row.
static std::string FirstRow(const HeadedCrossword& headed) {
  std::string row;
  for (int x = 1; x <= headed.crossword.ukr_sirina; ++x)
    row += headed.crossword.ukr_polja(x, 1, 1).front();
  return row;
}

static std::string Texts(const Remarks& remarks) {
  std::string texts;
  for (const Remark& remark : remarks.List()) {
    if (remark.cell.x > 0) texts += std::to_string(remark.cell.x) + ": ";
    texts += TextOf(remark, true) + "\n";
  }
  return texts;
}

TEST(Storing, TakesTheLettersOfBothAlphabets) {
  struct Case {
    std::vector<std::string> cells;
    Language language;
    std::string stored;  ///< Of a lenient reading.
    std::string remarks = "";
    bool strict = true;  ///< Whether a strict reading takes it too.
  };
  const Case cases[] = {
      {{"Lj", "NJ", "dž", "ǉ", "Ǆ", "Č"}, Language::found, "QWXQX^"},
      {{"љ", "Њ", "Џ", "ђ", "Ш", "Ж"}, Language::found, "QWX\\[@"},
      {{"q", "W", "x", "Y"}, Language::english, "QWXY"},
      {{"A", "", "B"}, Language::english, "A?B", "Cells without a solution cannot be checked\n"},
      {{"é", "B"}, Language::english, "EB", "1: The accent was taken off \"é\"\n", false},
      {{"č", "Ö"},
       Language::english,
       "CO",
       "1: The accent was taken off \"č\"\n2: The accent was taken off \"Ö\"\n",
       false},
      {{"Ć", "É"}, Language::serbian, "]E", "2: The accent was taken off \"É\"\n", false},
      {{"HEART", "B"},
       Language::english,
       "HB",
       "1: Of \"HEART\" the first letter is left\n",
       false},
      {{"7", "♥"},
       Language::english,
       "??",
       "1: \"7\" has become a question mark\n2: \"♥\" has become a question mark\n",
       false},
      {{"Q", "A"}, Language::serbian, "?A", "1: \"Q\" has become a question mark\n", false},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.stored);
    Remarks remarks;
    const Puzzle puzzle = Row(row.cells);
    EXPECT_EQ(FirstRow(Store(puzzle, {row.language, true}, remarks)), row.stored);
    EXPECT_EQ(Texts(remarks), row.remarks);
    Remarks strict;
    if (row.strict) {
      EXPECT_EQ(FirstRow(Store(puzzle, {row.language, false}, strict)), row.stored);
    } else {
      EXPECT_THROW(Store(puzzle, {row.language, false}, strict), ConversionError);
    }
  }
}

TEST(Storing, PutsCluesIntoTheCode) {
  struct Case {
    std::string text, serbian, english;
  };
  const Case cases[] = {
      {"Ljubičasti džemper, KONJ i NJ.", "Qubi~asti xemper, KOW i W.",
       "Ljubičasti džemper, KONJ i NJ."},
      {"konjunktura, инјекција", "konjunktura, injekcija", "konjunktura, инјекција"},
      {"„Beograd” – «grad»…", "\"Beograd\" - \"grad\"...", "„Beograd” – «grad»…"},
      {"5 $; [a] x\\y|z @ ^ ~ `", "5 ?, (a) ks/y/z (at) ' - '", "5 ?, [a] x\\y|z @ ^ ~ `"},
      {"/kosa", " /kosa", " /kosa"},
      {"Café naïve, Łódź ☃", "Cafe naive, Lodz ?", "Café naïve, Łódź ☃"},
      {" dva\n reda\t", "dva reda", "dva reda"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.text);
    Remarks remarks;
    EXPECT_EQ(CodedClue(row.text, false, remarks), row.serbian);
    EXPECT_EQ(CodedClue(row.text, true, remarks), row.english);
  }
  Remarks remarks;
  CodedClue("[[ $ ☃", false, remarks);
  EXPECT_EQ(Texts(remarks),
            "[ was replaced by what resembles it (2×)\n☃ was replaced by a question mark\n"
            "$ in a clue was replaced by a question mark\n");
  EXPECT_EQ(UnicodeText("QUBAV, Qubav, konjunktura, nj", true),
            "LJUBAV, Ljubav, konjunktura, n\u200Cj");
  EXPECT_EQ(StoredText("n\u200Cj, нј, nj, њ"), "nj, nj, w, w");
}

TEST(Storing, RefusesWhatTheProgramCannotHold) {
  const auto refusal = [](const Puzzle& puzzle) {
    Remarks remarks;
    try {
      Store(puzzle, {}, remarks);
    } catch (const ConversionError& error) {
      return TextOf(error.Why(), true);
    }
    return std::string("taken");
  };
  EXPECT_EQ(refusal(Row({"A", "B"})), "taken");
  Puzzle full = EmptyPuzzle(3, 3);
  for (PuzzleCell& cell : full.cells) cell.solution = "A";
  EXPECT_EQ(refusal(full),
            "More than half of the cells have a number, which this program does not take");
  Puzzle single = Row({"A"});
  single.clues.clear();
  EXPECT_EQ(refusal(single), "The crossword has no word");
  EXPECT_THROW(EmptyPuzzle(128, 128), ConversionError);
  EXPECT_THROW(EmptyPuzzle(1 << 30, 1 << 30), ConversionError);
  EXPECT_THROW(EmptyPuzzle(0, 5), ConversionError);
}

TEST(Storing, TellsOfCluesWordsAndNumbersThatDoNotFit) {
  Puzzle puzzle = Row({"M", "I", "R"});
  puzzle.cells[0].number = "7";
  puzzle.clues.push_back({.direction = direction::down, .number = "9", .text = "Nigde"});
  puzzle.clues.front().text = "";
  Remarks remarks;
  Store(puzzle, {}, remarks);
  EXPECT_EQ(Texts(remarks),
            "A clue has no word in the grid: D9. Nigde\n1: A word has no clue\n"
            "1: The numbers of words differ: 7 → 1\n");
}

class QvmTest : public CrosswordFolder {
 protected:
  /// The crossword from its files, written anew.
  HeadedCrossword Rewritten(const HeadedCrossword& headed, const Division& division) {
    Remarks remarks;
    const std::vector<QvmFile> files = QvmFiles(headed, division, remarks);
    for (int i = 0; i < division.installments; ++i)
      folder.Put(QvmName("zimsk", division, i + 1),
                 files.at(static_cast<std::size_t>(i)).crossword);
    return ReadQvm(folder.Logic(QvmName("zimsk", division, 1)), Language::found);
  }

  /// Expects the same words, clues, letters and borders; blocked cells are all gray.
  static void ExpectSame(const HeadedCrossword& one, const HeadedCrossword& other) {
    const Puzzle a = Shown(one, false);
    const Puzzle b = Shown(other, false);
    ASSERT_EQ(a.width, b.width);
    ASSERT_EQ(a.height, b.height);
    EXPECT_TRUE(a.cells == b.cells);
    EXPECT_TRUE(a.clues == b.clues);
    EXPECT_EQ(one.head, other.head);
    EXPECT_EQ(one.english, other.english);
    for (int y = 1; y <= a.height; ++y) {
      for (int x = 1; x <= a.width; ++x) {
        SCOPED_TRACE(std::to_string(y) + "," + std::to_string(x));
        const std::string& cell = one.crossword.ukr_polja(x, y, 1);
        const std::string& again = other.crossword.ukr_polja(x, y, 1);
        if (!IsLetterCell(cell)) continue;
        EXPECT_EQ(cell.substr(0, cell.rfind('$')), again.substr(0, again.rfind('$')));
        EXPECT_EQ(one.crossword.ukr_polja(x, y, 2), other.crossword.ukr_polja(x, y, 2));
      }
    }
  }
};

TEST_F(QvmTest, EverySampleComesBackInBothScripts) {
  int samples = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SAMPLES_FOLDER)) {
    if (entry.path().extension() != ".qvm") continue;
    SCOPED_TRACE(entry.path());
    ++samples;
    HeadedCrossword sample = ReadQvm(files::LogicPath(entry.path().string()), Language::found);
    for (const bool latin : {true, false}) {
      Remarks remarks;
      const Puzzle puzzle = Shown(sample, latin);
      const HeadedCrossword stored = Store(puzzle, {}, remarks);
      ExpectSame(sample, stored);
      ExpectSame(stored, Rewritten(stored, {}));
      EXPECT_EQ(Texts(remarks), "");
    }
  }
  EXPECT_GT(samples, 5);
}

TEST_F(QvmTest, InstallmentsJoinToTheSameCrossword) {
  HeadedCrossword whole = ReadQvm(files::LogicPath(SAMPLES_FOLDER "/velika.qvm"), Language::found);
  whole.head = {"Šuma – „Džep”", "Petar Đurić", "© 2020 Vostrand", "Teška (c)dva"};
  for (const Division division :
       {Division{5, join::side_by_side}, Division{2, join::one_under_the_other}, Division{}}) {
    SCOPED_TRACE(division.join);
    if (whole.crossword.ukr_sirina % division.installments != 0) continue;
    HeadedCrossword read = Rewritten(whole, division);
    EXPECT_EQ(read.head, (Head{"Šuma - \"Džep\"", "Petar Đurić", "2020 Vostrand", "Teška (c)dva"}));
    read.head = whole.head;
    ExpectSame(whole, read);
  }
  Remarks remarks;
  EXPECT_THROW(QvmFiles(whole, {7, join::side_by_side}, remarks), ConversionError);
}

TEST(MadeName, IsOneThatTheProgramTakes) {
  struct Case {
    std::string text, name;
    int number = 1;
  };
  const Case cases[] = {{"Šumske životinje!", "sumske-zivotinje"},
                        {"Ђурђевак и џеп", "djurdjevak-i-dze"},
                        {"Puzzle 2024", "puzzle-202-4"},
                        {"123", "12-3"},
                        {"...", "ukrstenica"},
                        {"Zima", "zima-2", 2},
                        {"Sedamnaest slova", "sedamnaest-sl-12", 12},
                        {"a.b.c", "a-b-c"}};
  for (const Case& row : cases) EXPECT_EQ(MadeName(row.text, row.number), row.name);
}

}  // namespace kalvon::exchange::testing
