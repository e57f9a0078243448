// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "shell/toolkit/desktop/screen.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

class CrosswordLoad : public ProgramTest {
 protected:
  /// A load that ended early left the program as usable as it was.
  void ExpectNextLoadWorks() {
    EXPECT_TRUE(frm_glavni->Enabled());
    EXPECT_FALSE(frm_ucit_snimi->Visible());
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    WriteFile("good.qvm", Qvm({"MIR", "A#A", "KIT"}));
    Load("good.qvm");
    EXPECT_EQ(glavni.broj_pitanja, 3);
    EXPECT_EQ(glavni.rec_tekst, "___");
    EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (good.qvm)");
    EXPECT_TRUE(frm_glavni->pic_ukr.Enabled());
  }
};

TEST_F(CrosswordLoad, OpensListsAndViewAtTheChosenInstallment) {
  // Each installment has three across and two down clues.
  for (const char* name : {"zima1001.qvm", "zima1004.qvm", "zima1002.qvm", "zima1003.qvm"})
    WriteFile(name, Qvm({"#MIR#", "##V##", "#SAN#", "###D#", "##DAN", "#####"}));
  Load("zima1003.qvm");
  EXPECT_EQ(glavni.pogled_y, 10) << "as far as the grid's end allows";
  // The first clue in the view is the sixth across clue; four down clues stand before it.
  auto& form = *frm_glavni;
  using Bars = std::vector<int>;
  EXPECT_EQ((Bars{form.scr_ver.Value(), form.scr_tekst(0).Value(), form.scr_tekst(1).Value()}),
            (Bars{9, 6, 5}));
  EXPECT_EQ((Bars{form.scr_hor.Max(), form.scr_ver.Max(), form.scr_tekst(0).Max(),
                  form.scr_tekst(1).Max()}),
            (Bars{0, 9, 12, 8}));
  EXPECT_EQ(glavni.skrol_aktivan, 1);
  EXPECT_EQ(glavni.rec_y1, 11);
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (zima1003.qvm)");
  Load("zima1002.qvm");
  EXPECT_EQ(glavni.pogled_y, 7);
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (zima1002.qvm)");

  for (const char* name : {"leto1001.qvm", "leto1002.qvm"})
    WriteFile(name, Qvm({.rows = {"DAN#######", "##########"}, .marks = {1}}));
  Load("leto1002.qvm");
  EXPECT_EQ(glavni.pogled_x, 6);
  EXPECT_EQ(frm_glavni->scr_hor.Value(), 5);
  EXPECT_EQ(glavni.rec_x1, 11);
}

TEST_F(CrosswordLoad, EndsQuietlyAtAnyMoment) {
  std::vector<std::string> deep(20, std::string(20, '#'));
  deep.back().replace(0, 2, "DA");
  const std::pair<const char*, std::string> rows[] = {
      {"eight.qvm", Lines({"", "", "D:X=  3 Y=  3", "", "", "", "", ""})},
      {"million.qvm", Lines(HeaderLines(999, 999))},
      {"lines.qvm", Lines(HeaderLines(3, 3)) + "A$0$1$0$00\r\n"},
      {"words.qvm", Qvm({"ABC", "DEF", "GHI"})},
      {"deep.qvm", Qvm(deep)},  // The view holds no clue.
  };
  for (const bool first : {true, false}) {
    for (const auto& [file, bytes] : rows) {
      SCOPED_TRACE(file);
      if (first) Restart();
      WriteFile(file, bytes);
      Load(file);
      EXPECT_EQ(frm_glavni->pic_ukr.Enabled(), !first);
      ClickCell(1, 1);
      ClickButton("cmd_glavni(1)");
      EXPECT_EQ(ReadFile(file), bytes) << "what was not read whole is not saved";
      ExpectNextLoadWorks();
    }
  }
}

TEST_F(CrosswordLoad, DrawsTheProgressBarInColumns) {
  std::vector<std::string> rows(15, std::string(15, '#'));
  rows.front().replace(0, 2, "DA");
  WriteFile("big.qvm", Qvm(rows));
  Choose("big.qvm");
  // The bar is wiped when the dialog closes, so it is looked at when a list is set.
  frm_glavni->scr_tekst(0).Change = [&] { EXPECT_EQ(PixelOf("pic_status", 1, 10), 0xC0C0C0U); };
  ClickButton("cmd_ucit(0)");
  EXPECT_EQ(glavni.napredak_korak, 3);
  EXPECT_EQ(glavni.napredak_x, (2 * 15 * 15 + 9) / 3);
}

}  // namespace kalvon::testing
