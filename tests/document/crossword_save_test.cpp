// SPDX-License-Identifier: MIT
#include "document/crossword_save.h"
#include "crossword/cell.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "shell/toolkit/desktop/screen.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon {
namespace {

using testing::CrosswordText;
using testing::HeaderLines;
using testing::Lines;
using testing::Qvm;

class CrosswordSave : public testing::ProgramTest {
 protected:
  /// Puts a letter into a cell, as the word editor does.
  static void Enter(int x, int y, char letter) {
    std::string& cell = glavni.ukr_polja.Mutable(x, y, 1);
    cell = WithUserLetter(cell, letter);
  }

  void Save() { ClickButton("cmd_glavni(1)"); }

  /// The files of the folder and what is in them.
  [[nodiscard]] std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
      const std::string name = entry.path().filename().string();
      files[name] = ReadFile(name);
    }
    return files;
  }
};

TEST_F(CrosswordSave, ChangesNothingButTheTypedLetters) {
  const CrosswordText text{.rows = {"MIR", "A#A", "KIT"},
                           .clues = {{"A1", "\xC6uti, \xE6uti"}},
                           .borders = {{{2, 1}, "12"}},
                           .media_table = "/kit.bmp/1078"};
  WriteFile("Zima 1.QVM", Qvm(text));
  Load("Zima 1.QVM");
  Save();
  EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"Zima 1.QVM", Qvm(text)}}));

  Enter(1, 1, 'M');
  Enter(2, 3, 'X');
  Save();
  CrosswordText solved = text;
  solved.letters = {"M", "", " X"};
  EXPECT_EQ(ReadFile("Zima 1.QVM"), Qvm(solved));
  Restart();
  Load("Zima 1.QVM");
  Save();
  EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"Zima 1.QVM", Qvm(solved)}}));
  EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
}

TEST_F(CrosswordSave, WritesHeadersAsTheyStandAndCellsAsTheyWereRead) {
  std::vector<std::string> lines = {"a;b", "", "x:ab  2  1", ";:", "\xFF\x01", " ", "1", "", ":-"};
  const std::vector<std::string> cells = {"A", "?1;2;$;$$$a;b$;", "B$$$", ""};
  lines.insert(lines.end(), cells.begin(), cells.end());
  WriteFile("free.qvm", Lines(lines) + "behind\r\nthe last");
  Load("free.qvm");
  Save();
  std::ranges::replace(lines[10], ';', ',');
  EXPECT_EQ(ReadFile("free.qvm"), Lines(lines));
}

TEST_F(CrosswordSave, WritesEachInstallmentItsOwnCells) {
  for (const auto& marks :
       {std::array{1, 0, 0, 0}, std::array{0, 1, 0, 0}, std::array{0, 0, 0, 0}}) {
    SCOPED_TRACE(::testing::PrintToString(marks));
    CrosswordText second{.rows = {"DAN", "O#A"}, .marks = marks, .number = 2};
    CrosswordText fourth{.rows = {"REP", "E#A"}, .marks = marks, .number = 4};
    WriteFile("zima1002.qvm", Qvm(second));
    WriteFile("zima1004.qvm", Qvm(fourth));
    Load("zima1002.qvm");
    const bool beside = marks[0] == 1;
    Enter(beside ? 4 : 1, beside ? 2 : 4, 'N');
    Enter(beside ? 12 : 3, beside ? 1 : 7, 'P');
    Save();
    second.letters = {"", "N"};
    fourth.letters = {"  P"};
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"zima1002.qvm", Qvm(second)},
                                                           {"zima1004.qvm", Qvm(fourth)}}));
  }
}

TEST_F(CrosswordSave, LeavesAShortFileAsShortAsItWas) {
  const std::string head = Lines(HeaderLines(3, 2));
  WriteFile("short.qvm", head + "D$0$1$0$00\r\n010$$$$A1$$\r\nA$0$0$0$00\r\n\r\n");
  Load("short.qvm");
  Enter(2, 1, 'X');
  Save();
  EXPECT_EQ(ReadFile("short.qvm"), head + "D$0$1$0$00\r\n010$$$$A1$$\r\nAX$0$0$0$00\r\n\r\n");
}

// Whatever else happens to them, the files hold what they held before.
TEST_F(CrosswordSave, NeverHarmsAFileThatItCannotRewrite) {
  const std::string whole = Qvm({"MIR", "A#A", "KIT"});
  struct Case {
    const char* fault;
    std::string bytes;
  };
  const std::vector<Case> cases = {
      {"header cut off", whole.substr(0, 40)},
      {"empty", ""},
      {"another size", Qvm({"DAN", "OKO"})},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fault);
    WriteFile("zima1001.qvm", whole);
    WriteFile("zima1002.qvm", whole);
    Load("zima1001.qvm");
    WriteFile("zima1001.qvm", c.bytes);
    Enter(1, 1, 'M');
    Enter(1, 4, 'M');
    Save();
    const std::string solved = Qvm({.rows = {"MIR", "A#A", "KIT"}, .letters = {"M"}});
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"zima1001.qvm", c.bytes},
                                                           {"zima1002.qvm", solved}}));
  }
  WriteFile("zima1001.qvm", whole);
  Load("zima1001.qvm");
  Enter(1, 1, 'X');
  std::filesystem::permissions(folder() / "zima1001.qvm", std::filesystem::perms::owner_read);
  std::filesystem::remove(folder() / "zima1002.qvm");
  Save();
  EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"zima1001.qvm", whole}}));
  EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
}

TEST_F(CrosswordSave, WritesNothingOfACrosswordThatWasNotReadWhole) {
  const CrosswordText whole{.rows = {"MIR", "A#A", "KIT"}};
  struct Case {
    const char* fault;
    const char* chosen;
    std::map<std::string, std::string> files;
  };
  const std::string cell = "A$0$1$0$00\r\n";
  const std::vector<Case> cases = {
      {"no attribute line", "b.qvm", {{"b.qvm", Lines(HeaderLines(3, 3)) + cell}}},
      {"too many cells", "b.qvm", {{"b.qvm", Lines(HeaderLines(999, 999)) + cell}}},
      {"too many words", "b.qvm", {{"b.qvm", Qvm({"ABC", "DEF", "GHI"})}}},
      {"the second installment ends early",
       "zima1001.qvm",
       {{"zima1001.qvm", Qvm({.rows = {"MIR", "A#A", "KIT"}, .marks = {1}})},
        {"zima1002.qvm", Lines(HeaderLines(3, 3)) + cell}}},
      {"cells of another file", "a.b.qvm", {{"a.b.qvm", Qvm({"DAN", "A#A", "TEK"})}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fault);
    std::map<std::string, std::string> files = c.files;
    files["a.qvm"] = Qvm(whole);
    for (const auto& [name, bytes] : files) WriteFile(name, bytes);
    Load("a.qvm");
    Enter(1, 1, 'X');
    Load(c.chosen);
    Save();
    EXPECT_EQ(Files(), files);
    for (const auto& [name, bytes] : files) std::filesystem::remove(folder() / name);
  }
}

TEST_F(CrosswordSave, GoesOnWithTheCrosswordThatAFailedLoadLeft) {
  CrosswordText whole{.rows = {"MIR", "A#A", "KIT"}};
  WriteFile("good.qvm", Qvm(whole));
  const std::string eight_lines = Lines({"", "Naziv: Nema", "D:X=  3 Y=  3", "", "", "", "", ""});
  WriteFile("zima1001.qvm", eight_lines);
  Load("good.qvm");
  Enter(1, 1, 'X');
  Load("zima1001.qvm");
  Save();
  whole.letters = {"X"};
  EXPECT_EQ(ReadFile("good.qvm"), Qvm(whole));
  EXPECT_EQ(ReadFile("zima1001.qvm"), eight_lines);
}

}  // namespace
}  // namespace kalvon
