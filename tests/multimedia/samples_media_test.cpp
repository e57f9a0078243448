// SPDX-License-Identifier: MIT
#include <QToolButton>
#include <map>

#include "crossword/fields.h"
#include "document/media_pack.h"
#include "multimedia/media_pane.h"
#include "support/program_test.h"

namespace kalvon::testing {

namespace {

/// Opens the media of the sample crosswords at the words whose clues name them.
class SamplesMediaTest : public ProgramTest {
 protected:
  /// The bytes of each medium that a clue names, by the column of its word and its name.
  std::map<std::pair<int, std::string>, std::string> OpenAll() {
    std::map<std::pair<int, std::string>, std::string> media;
    for (int n = 1; n <= glavni.broj_pitanja; ++n) {
      glavni.pret_x1 = glavni.pitanja(n, 2);
      glavni.pret_y1 = glavni.pitanja(n, 3);
      for (const int field : {4, 5}) {
        const std::string& words = glavni.ukr_polja(glavni.pret_x1, glavni.pret_y1, 2);
        const std::string_view clue = Behind(words, '$', field);
        if (!clue.starts_with('/')) continue;
        glavni.media_fajl = clue.substr(1, clue.find('/', 1) - 1);
        izvuci_media();
        ExpectShown();
        media[{glavni.pret_x1, glavni.media_fajl}] = ReadFile(glavni.media_fajl);
      }
    }
    zatvori_media();
    return media;
  }

  void ExpectShown() const {
    SCOPED_TRACE(glavni.media_fajl);
    if (glavni.media_tip == "bmp") {
      EXPECT_FALSE(frm_glavni->pic_media(5).Picture().Empty());
    } else if (glavni.media_tip == "txt") {
      EXPECT_GT(frm_glavni->txt_media(1).Text().size(), 100U);
    } else {
      const auto* stop = Widget("mm_media")->findChild<QToolButton*>(QStringLiteral("stop"));
      EXPECT_TRUE(stop->isEnabled()) << "does not play";
    }
  }
};

TEST_F(SamplesMediaTest, TheLargeOneHasMediaOfAllKinds) {
  for (const char* name : {"velika.qvm", "velika.qvd"}) CopySample(name);
  Load("velika.qvm");
  EXPECT_EQ(OpenAll().size(), 5U);
}

TEST_F(SamplesMediaTest, TwoInstallmentsHaveDifferentMediaOfOneName) {
  for (const char* name :
       {"zima1001.qvm", "zima1001.qvd", "zima1002.qvm", "zima1002.qvd", "zima1003.qvm"})
    CopySample(name);
  Load("zima1003.qvm");
  const auto media = OpenAll();
  ASSERT_EQ(media.size(), 2U);
  EXPECT_EQ(media.begin()->first.second, media.rbegin()->first.second);
  EXPECT_NE(media.begin()->second.size(), media.rbegin()->second.size());
}

}  // namespace

}  // namespace kalvon::testing
