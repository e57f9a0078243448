// SPDX-License-Identifier: MIT
#include "crossword/sample_copies.h"

#include "crossword/crossword_folder.h"
#include "crossword/writing.h"
#include "files/run_time_error.h"
#include "support/crossword_text.h"

namespace kalvon::testing {
namespace {

class SampleCopies : public CrosswordFolder {
 protected:
  void HandOut() { CopySamples(shipped_.Logic(), folder.Logic()); }

  ScratchFolder shipped_;
};

TEST_F(SampleCopies, AreMadeOnceAndNeverOverAGame) {
  const Files files = {{"mala.qvm", Qvm({"KIT", "A#O"})},
                       {"mala.qvd", "slika"},
                       {"zima1001.qvm", Qvm({"LAV"})},
                       {"zima1003.qvm", Qvm({"RIS"})}};
  for (const auto& [name, bytes] : files) shipped_.Put(name, bytes);
  HandOut();
  EXPECT_EQ(All(), files);

  Crossword game = Read("mala.qvm");
  Enter(game, 1, 1, 'S');
  WriteCrossword(game);
  const Files with_game = All();
  ASSERT_NE(with_game, files);
  HandOut();
  EXPECT_EQ(All(), with_game) << "the crossword is there, with a game in it";

  shipped_.Put("mala.qvm", Qvm({"SOK", "A#O"}));
  shipped_.Put("zima1003.qvm", Qvm({"PAS"}));
  Files beside = with_game;
  beside["mala-2.qvm"] = shipped_.Get("mala.qvm");
  beside["mala-2.qvd"] = "slika";
  beside["zima2001.qvm"] = shipped_.Get("zima1001.qvm");
  beside["zima2003.qvm"] = shipped_.Get("zima1003.qvm");
  for (int version = 1; version <= 2; ++version) {
    HandOut();
    EXPECT_EQ(All(), beside) << "other crosswords of these names, time " << version;
  }
}

TEST_F(SampleCopies, ThatFailLeaveNothingHalf) {
  shipped_.Put("mala.qvm", Qvm({"KIT", "A#O"}));
  std::filesystem::create_symlink(shipped_.Host("nema"), shipped_.Host("mala.qvd"));
  EXPECT_THROW(HandOut(), files::RuntimeError);
  EXPECT_EQ(All(), Files());
}

}  // namespace
}  // namespace kalvon::testing
