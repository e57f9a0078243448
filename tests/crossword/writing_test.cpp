// SPDX-License-Identifier: MIT
#include "crossword/writing.h"

#include "crossword/crossword_folder.h"

namespace kalvon::testing {

class Writing : public CrosswordFolder {
 protected:
  /// The error of each installment that is written.
  static std::vector<int> Errors(const Crossword& crossword) {
    std::vector<int> errors;
    for (const auto [installment, error] : WriteCrossword(crossword)) errors.push_back(error);
    return errors;
  }
};

TEST_F(Writing, ChangesNothingButTheTypedLetters) {
  CrosswordText text{.rows = {"MIR", "A#A", "KIT"},
                     .clues = {{"A1", "\xC6uti, \xE6uti"}},
                     .media_table = "/kit.bmp/1078"};
  const Files before = {{"Zima 1.QVM", Qvm(text)}};
  Put(before);
  Crossword crossword = Read("zima 1.qvm");
  EXPECT_EQ(Errors(crossword), std::vector{0});
  EXPECT_EQ(All(), before);

  Enter(crossword, 1, 1, 'M');
  Enter(crossword, 2, 3, 'X');
  text.clues["A1"] = "Somebody has corrected it";
  Put({{"Zima 1.QVM", Qvm(text)}});
  EXPECT_EQ(Errors(crossword), std::vector{0});
  text.letters = {"M", "", " X"};
  EXPECT_EQ(All(), (Files{{"Zima 1.QVM", Qvm(text)}}));
}

TEST_F(Writing, KeepsLineEndsAndCompletesTheLastLine) {
  const std::string whole = Qvm({"MIR"});
  std::string lf = whole;
  std::erase(lf, '\r');
  for (const auto& [bytes, complete] : {std::pair{lf, lf},
                                        {whole.substr(0, whole.size() - 2), whole},
                                        {whole.substr(0, whole.size() - 4), whole}}) {
    Put({{"sport2024.qvm", bytes}});
    EXPECT_EQ(Errors(Read("sport2024.qvm")), std::vector{0});
    EXPECT_EQ(All(), (Files{{"sport2024.qvm", complete}}));
  }
}

TEST_F(Writing, LeavesHeaderAndFieldsAsTheyStandAndAShortFileShort) {
  std::vector<std::string> lines = {"a;b", "",  "x:ab  2  1",      ";:",   "\xFF\x01", " ", "1", "",
                                    ":-",  "A", "?1;2;$;$$$a;b$;", "B$$$", ""};
  Put({{"free.qvm", Lines(lines) + "behind\r\nthe last"}});
  WriteCrossword(Read("free.qvm"));
  lines[10] = "?1,2,$,$$$a,b$,";
  EXPECT_EQ(folder.Get("free.qvm"), Lines(lines));

  const std::string head = Lines(HeaderLines(3, 2)) + "D$0$1$0$00\r\n010$$$$A1$$\r\nA";
  Put({{"short.qvm", head + "$0$0$0$00\r\n\r\n"}});
  Crossword read = Read("short.qvm");
  Enter(read, 2, 1, 'X');
  WriteCrossword(read);
  EXPECT_EQ(folder.Get("short.qvm"), head + "X$0$0$0$00\r\n\r\n");
}

TEST_F(Writing, GivesEachInstallmentItsOwnCells) {
  for (const auto& marks : {std::array{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 0, 0}}) {
    SCOPED_TRACE(::testing::PrintToString(marks));
    CrosswordText second{.rows = {"DAN", "O#A"}, .marks = marks};
    CrosswordText fourth{.rows = {"REP", "E#A"}, .marks = marks};
    Put({{"zima1002.qvm", Qvm(second)}, {"zima1004.qvm", Qvm(fourth)}});
    Crossword read = Read("zima1002.qvm");
    const bool beside = marks[0] == 1;
    Enter(read, beside ? 4 : 1, beside ? 2 : 4, 'N');
    Enter(read, beside ? 12 : 3, beside ? 1 : 7, 'P');
    WriteCrossword(read);
    second.letters = {"", "N"};
    fourth.letters = {"  P"};
    EXPECT_EQ(All(), (Files{{"zima1002.qvm", Qvm(second)}, {"zima1004.qvm", Qvm(fourth)}}));
  }
}

TEST_F(Writing, ReachesTheFileThatWasRead) {
  const std::string whole = Qvm({"MIR"});
  for (const char* chosen : {"Proba.qvm", "PROBA.qvm", "proba.qvm"}) {
    const Files before = {{"PROBA.qvm", whole}, {"Proba.qvm", whole}, {"proba.qvm", whole}};
    Put(before);
    Crossword read = Read(chosen);
    Enter(read, 1, 1, 'X');
    WriteCrossword(read);
    for (const auto& [name, bytes] : before)
      EXPECT_EQ(folder.Get(name) == bytes, name != chosen) << name;
  }
}

// Whatever else happens to them, the files hold what they held before.
TEST_F(Writing, NeverHarmsAFileThatItCannotRewrite) {
  const std::string whole = Qvm({"MIR", "A#A", "KIT"});
  const std::string solved = Qvm({.rows = {"MIR", "A#A", "KIT"}, .letters = {"M"}});
  const std::pair<const char*, std::string> rows[] = {
      {"header cut off", whole.substr(0, 40)},
      {"another size", Qvm({"DAN", "OKO"})},
      {"another letter", Qvm({"MIR", "A#O", "KIT"})}};
  for (const auto& [fault, bytes] : rows) {
    SCOPED_TRACE(fault);
    Put({{"zima1001.qvm", whole}, {"zima1002.qvm", whole}});
    Crossword read = Read("zima1001.qvm");
    Put({{"zima1001.qvm", bytes}});
    Enter(read, 1, 1, 'M');
    Enter(read, 1, 4, 'M');
    WriteCrossword(read);
    EXPECT_EQ(All(), (Files{{"zima1001.qvm", bytes}, {"zima1002.qvm", solved}}));
  }
  Put({{"zima1001.qvm", whole}});
  Crossword read = Read("zima1001.qvm");
  Enter(read, 1, 1, 'X');
  std::filesystem::permissions(folder.Host("zima1001.qvm"), std::filesystem::perms::owner_read);
  std::filesystem::remove(folder.Host("zima1002.qvm"));
  EXPECT_EQ(Errors(read),
            (std::vector{files::error::permission_denied, files::error::file_not_found}));
  EXPECT_EQ(All(), (Files{{"zima1001.qvm", whole}}));
}

TEST_F(Writing, WritesNoCrosswordWithoutAClue) {
  const Files before = {{"bez.qvm", Lines(HeaderLines(1, 1)) + "Obican red\r\nJos jedan\r\n\r\n"}};
  Put(before);
  EXPECT_EQ(Errors(Read("bez.qvm")), std::vector{files::error::subscript_out_of_range});
  EXPECT_EQ(All(), before);
}

}  // namespace kalvon::testing
