// SPDX-License-Identifier: MIT
#include <QScrollBar>
#include <QToolButton>
#include <set>

#include "support/puzzle_test.h"

namespace kalvon::testing {

struct Sample {
  const char* file;
  int language;
  std::size_t media;
};

/// Goes through a sample crossword from end to end, in the program of its language.
class Samples : public PuzzleTest, public ::testing::WithParamInterface<Sample> {
 protected:
  Samples() : PuzzleTest(GetParam().language) {}

  /// Whether the pane shows or plays something.
  [[nodiscard]] bool PaneHasContent() const {
    if (glavni.media_tip == "bmp") return !frm_glavni->pic_media(5).Picture().Empty();
    if (glavni.media_tip == "txt") return frm_glavni->txt_media(1).Text().size() > 100;
    return Widget("mm_media")->findChild<QToolButton*>(QStringLiteral("stop"))->isEnabled();
  }
};

TEST_P(Samples, EveryClueSelectsItsWordAndShowsItsMediumAndASaveChangesNoByte) {
  std::map<std::string, std::string> files;
  for (const auto& sample : std::filesystem::directory_iterator(SAMPLES_FOLDER)) {
    const std::string name = sample.path().filename().string();
    CopySample(name);
    files[name] = ReadFile(name);
  }
  Load(GetParam().file);
  std::set<std::string> media;
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
      if (glavni.media_fajl.empty()) continue;
      ClickClue(list, 1, 2);
      EXPECT_TRUE(PaneHasContent());
      media.insert(ReadFile(glavni.media_fajl));
    }
  }
  EXPECT_EQ(media.size(), GetParam().media);
  ClickButton("cmd_glavni(1)");
  for (const auto& [name, bytes] : files) EXPECT_EQ(ReadFile(name), bytes) << name;
}

INSTANTIATE_TEST_SUITE_P(All, Samples,
                         ::testing::Values(Sample{"proba.qvm", 0, 0}, Sample{"velika.qvm", 0, 5},
                                           Sample{"zima1002.qvm", 0, 2},
                                           Sample{"leto1003.qvm", 0, 0},
                                           Sample{"equinox.qvm", 1, 0}));

}  // namespace kalvon::testing
