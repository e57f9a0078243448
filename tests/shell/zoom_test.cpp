// SPDX-License-Identifier: MIT
#include "shell/zoom.h"

#include <QWheelEvent>

#include "shell/toolkit/drawing/scale.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

class ZoomTest : public PuzzleTest {
 protected:
  ~ZoomTest() override { toolkit::Zoom(1); }

  [[nodiscard]] QSize WindowSize() const { return Widget("frm_glavni")->size(); }
  void Press(Qt::Key key) const { QTest::keyClick(Widget("txt_rec(0)"), key, Qt::ControlModifier); }
};

TEST_F(ZoomTest, TheWindowsSizeIsTheZoomAndNothingElseChanges) {
  Solve({.rows = puzzle_rows});
  Keys("m");
  const int width = frm_glavni->Width();
  const int height = frm_glavni->Height();
  for (const auto& [size, zoom] : {std::pair(QSize(900, 790), 39.0 / 28),
                                   {QSize(480, 379), 0.75},
                                   {QSize(700, 2000), 30.0 / 28},
                                   {QSize(640, 505), 1.0}}) {
    SCOPED_TRACE(zoom);
    Widget("frm_glavni")->resize(size);
    QApplication::processEvents();
    EXPECT_EQ(toolkit::Zoom(), zoom);
    EXPECT_EQ(WindowSize(), size);
    EXPECT_EQ(frm_glavni->Width(), width);
    EXPECT_EQ(frm_glavni->Height(), height);
    const QWidget* strip = Widget("strip");
    EXPECT_EQ(strip->geometry().bottomRight(), QPoint(size.width() - 1, size.height() - 1));
    EXPECT_EQ(strip->width(), size.width());
    EXPECT_EQ(glavni.rec_tekst, "M__");
    ExpectScreenOfState(true);
  }
}

TEST_F(ZoomTest, KeysAndWheelGoFromStepToStepAsFarAsTheScreenHasRoom) {
  Solve({.rows = puzzle_rows});
  const auto turn = [&](int angle) {
    QWheelEvent event({5, 5}, {5, 5}, {}, {0, angle}, {}, Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(Widget("pic_ukr"), &event);
  };
  Press(Qt::Key_Minus);
  Press(Qt::Key_Minus);
  EXPECT_EQ(WindowSize(), QSize(480, 379));
  turn(60);
  turn(60);
  EXPECT_EQ(WindowSize(), QSize(640, 505));
  Press(Qt::Key_Plus);
  EXPECT_EQ(toolkit::Zoom(), 34.0 / 28) << "as wide as the screen with its frame";
  EXPECT_EQ(WindowSize(), QSize(777, 613));
  Press(Qt::Key_Plus);
  EXPECT_EQ(WindowSize(), QSize(777, 613));
  ClickPicture("pic_ukr", 17, 17 + 3 * 34);
  EXPECT_EQ(Selection(), (Word{1, 1, 4, 3, 4}));
  ExpectScreenOfState();
  Press(Qt::Key_0);
  EXPECT_EQ(toolkit::Zoom(), 1);
}

TEST_F(ZoomTest, DialogsGoWithTheForm) {
  ClickButton("cmd_glavni(0)");
  const QPoint there = Widget("frm_ucit_snimi")->pos();
  ClickButton("cmd_ucit(1)");
  Widget("frm_glavni")->move(Widget("frm_glavni")->pos() + QPoint(30, 20));
  ClickButton("cmd_glavni(0)");
  EXPECT_EQ(Widget("frm_ucit_snimi")->pos(), there + QPoint(30, 20));
  ClickButton("cmd_ucit(1)");
  Widget("frm_glavni")->move(700, 700);
  ClickButton("cmd_glavni(0)");
  const QRect dialog = Widget("frm_ucit_snimi")->geometry();
  EXPECT_TRUE(Widget("frm_ucit_snimi")->screen()->geometry().contains(dialog));
}

TEST_F(ZoomTest, TheWindowComesBackAsItWas) {
  Press(Qt::Key_Plus);
  Widget("frm_glavni")->move(3, 60);
  SaveWindow();
  const QRect before = Widget("frm_glavni")->geometry();
  for (const auto& [named, zoom] : {std::pair(std::optional<int>(), 1.214), {200, 2.0}}) {
    Stop();
    ChooseZoom(named);
    EXPECT_EQ(toolkit::Zoom(), zoom);
    Start();
    RestoreWindow();
    QApplication::processEvents();
    EXPECT_EQ(Widget("frm_glavni")->geometry() == before, !named);
  }
}

}  // namespace kalvon::testing
