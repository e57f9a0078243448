// SPDX-License-Identifier: MIT
#include <QMenu>

#include "display/repaint.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

class HighContrast : public PuzzleTest {
 protected:
  void SetUp() override {
    PuzzleTest::SetUp();
    Solve({.rows = std::vector(20, std::string(20, 'A').replace(3, 1, "#"))});
  }
  void Change() const {
    for (QAction* row : Widget("strip")->findChildren<QAction*>())
      if (row->text() == QStringLiteral("Visok kontrast")) row->trigger();
  }
  [[nodiscard]] std::array<QImage, 3> Pictures() const {
    return {Shown("pic_ukr"), Shown("pic_tekst(0)"), Shown("pic_tekst(1)")};
  }
};

TEST_F(HighContrast, MarksRestoreEveryPixelAndTheUsualLookComesBack) {
  const QImage usual = Widget("frm_glavni")->grab().toImage();
  Change();
  EXPECT_EQ(PixelOf("pic_ukr", 28 + 14, 14), 0xFFFF00) << "the marked word";
  EXPECT_EQ(PixelOf("pic_ukr", 28, 26), 0x000000) << "its dashes";
  EXPECT_EQ(PixelOf("pic_ukr", 3 * 28 + 14, 14), 0x000000) << "a blocked cell";
  EXPECT_EQ(PixelOf("pic_brojevi(0)", 1, 1), 0xFFFFFF) << "a ruler";
  Change();
  EXPECT_EQ(Widget("frm_glavni")->grab().toImage(), usual);
  Change();
  for (const char* keys : {"Box0 a Return", "Box1 Space Return", "Box0"}) {
    ClickCell(8, 9);
    ClickClue(2, 3);
    frm_glavni->scr_ver.Value(frm_glavni->scr_ver.Value() + 2);
    Keys(keys);
    const auto pictures = Pictures();
    iscrtaj_sve();
    EXPECT_EQ(Pictures(), pictures) << keys;
  }
  Change();
}

TEST_F(HighContrast, IsRemembered) {
  Change();
  Restart();
  Solve(Qvm({"MIR", "A#A", "KIT"}));
  EXPECT_EQ(PixelOf("pic_ukr", 28 + 14, 14), 0xFFFF00);
  Change();
  Restart();
  EXPECT_FALSE(glavni.visok_kontrast);
}

}  // namespace kalvon::testing
