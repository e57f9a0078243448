// SPDX-License-Identifier: MIT
#include "document/crossword_load.h"

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/toolkit/desktop/screen.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon {
namespace {

using testing::HeaderLines;
using testing::Lines;
using testing::Qvm;

class CrosswordLoad : public testing::ProgramTest {
 protected:
  const CrosswordState& state = glavni;

  /// The solution letters of a row of the grid; "$" stands for a blocked cell, "." for an empty
  /// one.
  [[nodiscard]] std::string Row(int y) const {
    std::string row;
    for (int x = 1; x <= state.ukr_sirina; ++x) {
      const std::string& cell = state.ukr_polja(x, y, 1);
      row += cell.empty() ? '.' : cell.front();
    }
    return row;
  }

  [[nodiscard]] std::vector<std::string> Grid() const {
    std::vector<std::string> rows;
    for (int y = 1; y <= state.ukr_visina; ++y) rows.push_back(Row(y));
    return rows;
  }

  /// Kind, column and row.
  [[nodiscard]] std::array<int, 3> ClueRow(int n) const {
    return {state.pitanja(n, 1), state.pitanja(n, 2), state.pitanja(n, 3)};
  }

  [[nodiscard]] int Clue(int x, int y) const { return state.rec_broj(x, y); }

  /// A load that ended early left the program as usable as it was.
  void ExpectNextLoadWorks() {
    EXPECT_TRUE(frm_glavni->Enabled());
    EXPECT_FALSE(frm_ucit_snimi->Visible());
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    WriteFile("good.qvm", Qvm({"MIR", "A#A", "KIT"}));
    Load("good.qvm");
    EXPECT_EQ(Grid(), (std::vector<std::string>{"MIR", "A$A", "KIT"}));
    EXPECT_EQ(state.broj_pitanja, 3);
    EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (good.qvm)");
    EXPECT_EQ(state.pre_ucitavanja, 0);
  }
};

TEST_F(CrosswordLoad, FillsTheStateFromOneFile) {
  WriteFile("proba.qvm", Qvm({.rows = {"MIR", "A#A", "KIT"},
                              .letters = {"M", "", " X"},
                              .clues = {{"A1", "Rat; ne; \xE6"}, {"D1", ""}}}));
  Load("proba.qvm");
  EXPECT_EQ(state.ukr_sirina, 3);
  EXPECT_EQ(state.ukr_visina, 3);
  EXPECT_EQ(state.br_vodoravnih, 2);
  EXPECT_EQ(state.br_uspravnih, 2);
  EXPECT_EQ(state.br_crnih, 1);
  EXPECT_EQ(state.broj_pitanja, 3);
  EXPECT_EQ(ClueRow(1), (std::array{3, 1, 1}));
  EXPECT_EQ(ClueRow(2), (std::array{2, 3, 1}));
  EXPECT_EQ(ClueRow(3), (std::array{1, 1, 3}));
  EXPECT_EQ(state.ukr_polja(1, 1, 1), "MM$0$1$1$00");
  EXPECT_EQ(state.ukr_polja(1, 1, 2), "011$$$$Rat, ne, \xE6$$");
  EXPECT_EQ(state.ukr_polja(2, 2, 1), "$1$");
  EXPECT_EQ(state.ukr_polja(2, 3, 1), "IX$0$0$0$00");
  EXPECT_EQ(state.nast_zadnji, 1);
  EXPECT_EQ(state.nast_smer, 0);
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (proba.qvm)");
  EXPECT_TRUE(frm_glavni->pic_ukr.Enabled());
  EXPECT_TRUE(frm_glavni->cmd_glavni(1).Enabled());

  WriteFile("Druga (2).QVM", Qvm({"DA"}));
  Load("Druga (2).QVM");
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (druga (2).qvm)");
  EXPECT_EQ(state.br_vodoravnih, 1);
  EXPECT_EQ(state.br_crnih, 0);
}

TEST_F(CrosswordLoad, CountsWordsByTheCellsAndNumbersThemByTheAttributes) {
  std::vector<std::string> lines = HeaderLines(2, 2);
  for (const char* line : {"A$0$1$1$00", "", "B$long$1$0$00", "010$$$$A1$$", "$7 free$1$1$", "",  //
                           "", "001$$$$$D2$"})
    lines.emplace_back(line);
  WriteFile("free.qvm", Lines(lines));
  Load("free.qvm");
  EXPECT_EQ(state.br_vodoravnih, 2);
  EXPECT_EQ(state.br_uspravnih, 1);
  EXPECT_EQ(state.br_crnih, 1);
  EXPECT_EQ(state.broj_pitanja, 2);
  EXPECT_EQ(Clue(2, 1), 1);
  EXPECT_EQ(Clue(2, 2), 2);
}

TEST_F(CrosswordLoad, FillsTheGapsBetweenInstallments) {
  const std::vector<std::string> rows = {"MIR", "A#A", "KIT", "###"};
  for (const char* name : {"zima1002.qvm", "Zima1005.qvm", "zima1006.qvm"})
    WriteFile(name, Qvm({.rows = rows, .marks = {0, 1}, .media_table = name}));
  Load("zima1006.qvm");
  // Zima1005 does not count when the last one is sought, and is there when it is read.
  EXPECT_EQ(state.nast_zadnji, 6);
  EXPECT_EQ(state.ukr_visina, 24);
  EXPECT_EQ(state.nast_smer, 2);
  for (const int missing : {1, 3, 4}) {
    EXPECT_EQ(state.nast_ucitan(missing), -1);
    EXPECT_EQ(state.media_sadrzaj(missing), "");
    EXPECT_EQ(state.ukr_polja(3, missing * 4, 1), "$2$");
  }
  for (const int present : {2, 5, 6}) {
    EXPECT_EQ(state.nast_ucitan(present), present);
    EXPECT_EQ(Row(present * 4 - 1), "KIT");
  }
  EXPECT_EQ(state.media_sadrzaj(5), "Zima1005.qvm");
  EXPECT_EQ(state.br_crnih, 3 * 4);
  EXPECT_EQ(Clue(1, 17), 4);

  // The view opens on the chosen installment, as far as the grid's end allows it.
  EXPECT_EQ(state.pogled_y, 10);
  EXPECT_EQ(frm_glavni->scr_ver.Value(), 9);
  EXPECT_EQ(frm_glavni->scr_ver.Max(), 9);
  EXPECT_EQ(frm_glavni->scr_hor.Max(), 0);
  Load("zima1002.qvm");
  EXPECT_EQ(state.pogled_y, 5);
}

TEST_F(CrosswordLoad, JoinsSideBySideAndNumbersByColumns) {
  WriteFile("zima1001.qvm", Qvm({.rows = {"MIR", "A#A", "KIT"}, .marks = {1}}));
  WriteFile("zima1002.qvm", Qvm({.rows = {"#DA", "#AR", "###"}, .marks = {1}}));
  Load("zima1002.qvm");
  EXPECT_EQ(Grid(), (std::vector<std::string>{"MIR$DA", "A$A$AR", "KIT$$$"}));
  EXPECT_EQ(state.nast_smer, 1);
  EXPECT_EQ(Clue(1, 1), 1);
  EXPECT_EQ(Clue(1, 3), 2);
  EXPECT_EQ(Clue(3, 1), 3);
  EXPECT_EQ(Clue(5, 1), 4);
  EXPECT_EQ(Clue(5, 2), 5);
  EXPECT_EQ(Clue(6, 1), 6);
}

TEST_F(CrosswordLoad, KeepsEachStackedInstallmentInItsOwnRows) {
  const std::string whole = Qvm({"MIR", "A#A", "KIT"});
  WriteFile("zima1001.qvm", whole + "X$0$0$0$00\r\n\r\nY\r\n");
  WriteFile("zima1002.qvm", Lines(HeaderLines(3, 3)) + "T$0$0$0$00\r\n\r\n");
  WriteFile("zima1003.qvm", whole);
  Load("zima1001.qvm");
  EXPECT_EQ(Grid(), (std::vector<std::string>{"MIR", "A$A", "KIT", "T..", "...", "...", "MIR",
                                              "A$A", "KIT"}));
  EXPECT_EQ(state.nast_smer, 0);
}

TEST_F(CrosswordLoad, ReadsLinesBehindTheLastCellIntoTheInstallmentBeside) {
  const std::string whole = Qvm({.rows = {"MIR", "A#A", "KIT"}, .marks = {1}});
  WriteFile("zima1001.qvm", whole + "X$0$0$0$00\r\n\r\n");
  WriteFile("zima1002.qvm", whole);
  Load("zima1001.qvm");
  EXPECT_EQ(Grid(), (std::vector<std::string>{"MIRMIR", "A$AA$A", "KITKIT"}));
  EXPECT_EQ(state.nast_polja(1), 9);

  WriteFile("zima1001.qvm", whole + "X$0$0$0$00\r\n");
  Load("zima1001.qvm");
  EXPECT_EQ(Row(1), "MIRX..");
  EXPECT_EQ(state.broj_pitanja, 0);
  ExpectNextLoadWorks();
}

TEST_F(CrosswordLoad, ReadsAnotherFileThanTheChosenOneForANameWithTwoDots) {
  WriteFile("a.b.qvm", Qvm({"DAR", "###"}));
  WriteFile("a.qvm", Qvm({"NE", "#K"}));
  Load("a.b.qvm");
  EXPECT_EQ(Grid(), (std::vector<std::string>{"NE$", "K.."}));
}

TEST_F(CrosswordLoad, EndsQuietlyAtEachLimit) {
  const std::string cells = "A$0$1$0$00\r\n010$$$$A1$$\r\n";
  const std::vector<std::string> head = HeaderLines(3, 3);
  struct Case {
    const char* fault;
    std::string bytes;
  };
  const std::vector<Case> cases = {
      {"empty file", ""},
      {"eight lines", Lines({head.begin(), head.end() - 1})},
      {"no line ends", "binary\x01\x02\r\n\r\r\r\n" + std::string(300, '\xFF')},
      {"a million cells", Lines(HeaderLines(999, 999)) + cells},
      {"16384 cells", Lines(HeaderLines(128, 128)) + cells},
      {"negative size", Lines(HeaderLines(-5, 3)) + cells},
      {"no size", Lines(HeaderLines(0, 0)) + cells},
      {"no attribute line", Lines(head) + "A$0$1$0$00\r\n"},
      {"more words than the clue table holds", Qvm({"ABC", "DEF", "GHI"})},
      {"one cell", Lines(HeaderLines(1, 1)) + cells},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.fault);
    WriteFile("bad.qvm", c.bytes);
    Load("bad.qvm");
    ExpectNextLoadWorks();
    Load("bad.qvm");
    ClickCell(1, 1);
    ExpectNextLoadWorks();
  }
}

TEST_F(CrosswordLoad, EndsQuietlyWhenInstallmentsDoNotFit) {
  WriteFile("zima1001.qvm", Lines(HeaderLines(60, 60)));
  WriteFile("zima1999.qvm", Lines(HeaderLines(60, 60)));
  Load("zima1001.qvm");
  ExpectNextLoadWorks();
  WriteFile("kviz001.qvm", Qvm({"MIR", "A#A", "KIT"}));
  Load("kviz001.qvm");
  EXPECT_EQ(state.nast_zadnji, 0);
  ExpectNextLoadWorks();
  WriteFile("gone.qvm", Qvm({"DA"}));
  Choose("gone.qvm");
  std::filesystem::remove(folder() / "gone.qvm");
  ClickButton("cmd_ucit(0)");
  ExpectNextLoadWorks();
}

TEST_F(CrosswordLoad, EndsAtAViewWithoutAClue) {
  std::vector<std::string> rows(20, std::string(20, '#'));
  rows.back().replace(0, 2, "DA");
  WriteFile("deep.qvm", Qvm(rows));
  Load("deep.qvm");
  EXPECT_EQ(state.broj_pitanja, 1);
  EXPECT_EQ(frm_glavni->scr_ver.Max(), 5);
  EXPECT_EQ(state.pre_ucitavanja, 1);
  EXPECT_FALSE(frm_glavni->pic_ukr.Enabled());
  ExpectNextLoadWorks();
}

TEST_F(CrosswordLoad, OpensTheListsAtTheFirstClueOfTheView) {
  // Each installment has three across and two down clues.
  for (const char* name : {"zima1001.qvm", "zima1004.qvm", "zima1002.qvm", "zima1003.qvm"})
    WriteFile(name, Qvm({"#MIR#", "##V##", "#SAN#", "###D#", "##DAN", "#####"}));
  Load("zima1003.qvm");
  EXPECT_EQ(state.pogled_y, 10);
  EXPECT_EQ(frm_glavni->scr_tekst(0).Max(), 12);
  EXPECT_EQ(frm_glavni->scr_tekst(1).Max(), 8);
  // The first clue in the view is the sixth across clue; four down clues stand before it.
  EXPECT_EQ(frm_glavni->scr_tekst(0).Value(), 6);
  EXPECT_EQ(frm_glavni->scr_tekst(1).Value(), 5);
  EXPECT_EQ(state.skrol1, 6);
  EXPECT_EQ(state.skrol2, 5);
  EXPECT_EQ(state.skrol_aktivan, 1);
  EXPECT_EQ(state.rec_y1, 11);
}

TEST_F(CrosswordLoad, DrawsTheProgressBarInColumns) {
  std::vector<std::string> rows(15, std::string(15, '#'));
  rows.front().replace(0, 2, "DA");
  WriteFile("big.qvm", Qvm(rows));
  Load("big.qvm");
  EXPECT_EQ(state.napredak_korak, 3);
  EXPECT_EQ(state.napredak_x, (2 * 15 * 15 + 9) / 3);
}

}  // namespace
}  // namespace kalvon
