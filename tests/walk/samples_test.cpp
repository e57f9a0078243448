// SPDX-License-Identifier: MIT
#include <QScrollBar>

#include "support/puzzle_test.h"

namespace kalvon::testing {

struct Sample {
  const char* file;
  int language;
};

/// Goes through a sample crossword from end to end, in the program of its language.
class Samples : public PuzzleTest, public ::testing::WithParamInterface<Sample> {
 protected:
  Samples() : PuzzleTest(GetParam().language) {}
};

TEST_P(Samples, EveryClueSelectsItsWordAndASaveChangesNoByte) {
  std::map<std::string, std::string> files;
  for (const auto& sample : std::filesystem::directory_iterator(SAMPLES_FOLDER)) {
    const std::string name = sample.path().filename().string();
    CopySample(name);
    files[name] = ReadFile(name);
  }
  Load(GetParam().file);
  for (const int list : {1, 2}) {
    auto* bar = Widget<QScrollBar>("scr_tekst(" + std::to_string(list - 1) + ")");
    for (int place = 1; place <= bar->maximum() && !HasFailure(); ++place) {
      bar->setValue(place);
      ClickClue(list, 1);
      SCOPED_TRACE("list " + std::to_string(list) + ": " + glavni.media_pitanje);
      EXPECT_EQ(glavni.sel_broj, Page(list).begin()->first);
      EXPECT_EQ(glavni.smer, list);
      EXPECT_GE(glavni.rec_tekst.size(), 2U);
      ExpectScreenOfState();
    }
  }
  ClickButton("cmd_glavni(1)");
  for (const auto& [name, bytes] : files) EXPECT_EQ(ReadFile(name), bytes) << name;
}

INSTANTIATE_TEST_SUITE_P(All, Samples,
                         ::testing::Values(Sample{"proba.qvm", 0}, Sample{"velika.qvm", 0},
                                           Sample{"zima1002.qvm", 0}, Sample{"leto1003.qvm", 0},
                                           Sample{"equinox.qvm", 1}));

}  // namespace kalvon::testing
