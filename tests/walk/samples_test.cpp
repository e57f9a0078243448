// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScrollBar>

#include "support/program_test.h"
#include "walk/invariants.h"

namespace kalvon::testing {
namespace {

struct Sample {
  const char* file;
  int language;
};

/// Goes through a sample crossword from end to end, in the program of its language.
class SamplesTest : public ProgramTest, public ::testing::WithParamInterface<Sample> {
 protected:
  SamplesTest() : ProgramTest(GetParam().language) {}

  void SetUp() override {
    ProgramTest::SetUp();
    for (const auto& sample : std::filesystem::directory_iterator(SAMPLES_FOLDER))
      if (sample.path().extension() != ".md") CopySample(sample.path().filename().string());
    Load(GetParam().file);
    invariants_.TakeCrossword();
  }

  static std::vector<int> CluesOf(int side) {
    std::vector<int> clues;
    for (int n = 1; n <= glavni.broj_pitanja; ++n)
      if ((glavni.pitanja(n, 1) & side) != 0) clues.push_back(n);
    return clues;
  }

  void ExpectClueSelected(int clue, int side) const {
    const auto& pitanja = glavni.pitanja;
    EXPECT_EQ(glavni.sel_broj, clue);
    EXPECT_EQ(glavni.smer, side);
    EXPECT_EQ(glavni.rec_x1, pitanja(clue, 2));
    EXPECT_EQ(glavni.rec_y1, pitanja(clue, 3));
    EXPECT_GE(glavni.rec_tekst.size(), 2U);
    EXPECT_GT(side == 1 ? glavni.oznaka1_od : glavni.oznaka2_od, 0);
    invariants_.Expect(false, false);
  }

  Invariants invariants_;
};

TEST_P(SamplesTest, EveryClueOfBothListsSelectsItsWord) {
  for (const int side : {1, 2, 1}) {
    const std::string list = std::to_string(side - 1);
    auto* bar = Widget<QScrollBar>("scr_tekst(" + list + ")");
    const std::vector<int> clues = CluesOf(side);
    ASSERT_EQ(bar->maximum(), static_cast<int>(clues.size()));
    for (std::size_t place = 0; place < clues.size() && !HasFailure(); ++place) {
      SCOPED_TRACE("list " + list + ", clue " + std::to_string(clues[place]));
      bar->setValue(static_cast<int>(place) + 1);
      ClickPicture("pic_tekst(" + list + ")", 40, 7);
      ExpectClueSelected(clues[place], side);
    }
  }
}

TEST_P(SamplesTest, EveryVisibleClueOfAPageSelectsItsWord) {
  for (int row = 13; row >= 0 && !HasFailure(); --row) {
    for (const int side : {1, 2}) {
      SCOPED_TRACE("side " + std::to_string(side) + ", row " + std::to_string(row + 1));
      ClickPicture("pic_tekst(" + std::to_string(side - 1) + ")", 40, row * 15 + 7);
      if (glavni.media_pitanje == "0") continue;  // Below the last clue.
      ExpectClueSelected(glavni.sel_broj, side);
    }
  }
}

TEST_P(SamplesTest, EveryCellCanBeClickedTwice) {
  for (int y = 1; y <= glavni.ukr_visina && !HasFailure(); ++y) {
    for (int x = 1; x <= glavni.ukr_sirina; ++x) {
      SCOPED_TRACE(std::to_string(x) + "," + std::to_string(y));
      Widget<QScrollBar>("scr_hor")->setValue(std::max(0, x - 8));
      Widget<QScrollBar>("scr_ver")->setValue(std::max(0, y - 8));
      ClickCell(x, y);
      invariants_.Expect(false, false);
      ClickCell(x, y);
      invariants_.Expect(false, false);
    }
  }
}

TEST_P(SamplesTest, ASaveWithoutASolvedLetterChangesNoByte) {
  std::map<std::string, std::string> before;
  for (const auto& file : std::filesystem::directory_iterator(folder()))
    before[file.path().filename().string()] = ReadFile(file.path().filename().string());
  ClickButton("cmd_glavni(1)");
  for (const auto& [name, bytes] : before) EXPECT_EQ(ReadFile(name), bytes) << name;
}

INSTANTIATE_TEST_SUITE_P(All, SamplesTest,
                         ::testing::Values(Sample{"proba.qvm", 0}, Sample{"velika.qvm", 0},
                                           Sample{"zima1002.qvm", 0}, Sample{"leto1003.qvm", 0},
                                           Sample{"equinox.qvm", 1}),
                         [](const auto& sample) {
                           const std::string name = sample.param.file;
                           return name.substr(0, name.find('.'));
                         });

class SolvingTest : public ProgramTest {
 protected:
  /// Dark pixels inside a view cell.
  [[nodiscard]] int Ink(int i, int j) const {
    int dark = 0;
    for (int x = 0; x < 27; ++x)
      for (int y = 0; y < 27; ++y)
        if ((PixelOf("pic_ukr", (i - 1) * 28 + x, (j - 1) * 28 + y) & 0xFF00U) < 0x8000U) ++dark;
    return dark;
  }
};

TEST_F(SolvingTest, LettersThatWereSavedAreThereAfterACrash) {
  CopySample("proba.qvm");
  const std::string before = ReadFile("proba.qvm");
  Load("proba.qvm");
  ClickPicture("pic_tekst(0)", 40, 7);
  Type("mir");
  PressKey(Qt::Key_Return);
  ClickPicture("pic_tekst(0)", 40, 22);
  Type("kit");
  PressKey(Qt::Key_Return);
  ClickButton("cmd_glavni(1)");
  Restart();

  Load("proba.qvm");
  EXPECT_EQ(glavni.rec_tekst, "MIR");
  ClickCell(1, 1);
  EXPECT_EQ(glavni.rec_tekst, "M_K") << "the second click on the M turns to MAK";
  ClickCell(1, 1);
  EXPECT_EQ(glavni.rec_tekst, "MIR");

  std::string expected = before;
  for (const char* cell :
       {"M$0", "I$0$0$0$00\r\n\r\nR", "R$0", "K$0", "I$0$0$0$00\r\n\r\nT", "T$0"})
    expected.insert(expected.find(cell) + 1, 1, *cell);
  EXPECT_EQ(ReadFile("proba.qvm"), expected);
}

TEST_F(SolvingTest, AWordOfTheGridIsTypedOnItsBoxes) {
  CopySample("velika.qvm");
  Load("velika.qvm");
  ClickPicture("pic_tekst(1)", 40, 7);
  Type("lep");
  EXPECT_EQ(frm_glavni->txt_rec(2).Text(), "P");
  EXPECT_EQ(FocusedControl(), "txt_rec(2)") << "the last letter keeps its box";
  EXPECT_EQ(glavni.ukr_polja(2, 1, 1), "L$0$1$1$00") << "not entered yet";
  const int before = Ink(2, 1);
  PressKey(Qt::Key_Return);
  EXPECT_EQ(glavni.ukr_polja(2, 1, 1), "LL$0$1$1$00");
  EXPECT_GT(Ink(2, 1), before + 10) << "the L is on the screen";
}

}  // namespace
}  // namespace kalvon::testing
