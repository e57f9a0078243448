// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

#include "files/run_time_error.h"
#include "shell/toolkit/control_form.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/events/program_end.h"

namespace toolkit::testing {
namespace {

class ControlsTest : public ::testing::Test {
 protected:
  void PressButton() { QTest::mouseClick(form.Widget("button"), Qt::LeftButton); }

  ControlForm form;
  int raised = 0;
};

TEST_F(ControlsTest, AScrollBarRaisesChangeWithinTheAssignmentThatMovesItsValue) {
  form.bar.Max(10);
  form.bar.Change = [&] { ++raised; };
  form.bar.Value(4);
  form.bar.Value(4);
  EXPECT_EQ(raised, 1) << "the second time the value was there already";
  form.bar.Value(99);
  EXPECT_EQ(form.bar.Value(), 10);
  form.bar.Max(3);
  EXPECT_EQ(form.bar.Value(), 3);
  form.bar.Min(5);
  EXPECT_EQ(form.bar.Value(), 5) << "a Max below Min leaves Min";
  EXPECT_EQ(raised, 4);
  for (const int value : {-32769, 32768})
    EXPECT_EQ(files::pass_over([&] { form.bar.Value(value); }), 380);
}

TEST_F(ControlsTest, AScrollBarActsWhenTheThumbIsLetGo) {
  form.bar.Change = [&] { raised = form.bar.Value(); };
  auto* bar = form.Widget<QScrollBar>("bar");
  bar->setSliderDown(true);
  bar->setSliderPosition(40);
  EXPECT_EQ(raised, 0);
  bar->setSliderDown(false);
  EXPECT_EQ(raised, 40);
}

TEST_F(ControlsTest, AfterTheEndNoEventIsRaised) {
  form.button.Click = [&] {
    const Hourglass busy;
    raised += Screen::MousePointer();
    End();
  };
  PressButton();
  PressButton();
  EXPECT_EQ(raised, 11);
  EXPECT_EQ(Screen::MousePointer(), 0);
  Restart();
}

TEST_F(ControlsTest, ADisabledFormTakesNoInputAndLooksAsBefore) {
  form.button.Click = [&] { ++raised; };
  form.Unload = [&](bool&) { ++raised; };
  const QImage before = form.InnerWidget()->grab().toImage();
  form.Enabled(false);
  PressButton();
  QTest::keyClick(form.Widget("button"), Qt::Key_Space);
  QTest::keyClick(form.InnerWidget(), Qt::Key_R, Qt::AltModifier);
  form.InnerWidget()->close();
  EXPECT_EQ(raised, 0);
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(form.InnerWidget()->grab().toImage(), before);
  form.Enabled(true);
  PressButton();
  EXPECT_EQ(raised, 1);
}

TEST_F(ControlsTest, TheFocusFollowsTheTabIndexesToWhatIsShownAndEnabled) {
  const auto focus = [] { return QApplication::focusWidget()->objectName().toStdString(); };
  form.bar.SetFocus();
  for (const char* next : {"box", "button", "bar"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(focus(), next);
  }
  const auto refused = [&] { return files::pass_over([&] { form.box.SetFocus(); }) == 5; };
  form.box.Enabled(false);
  EXPECT_TRUE(refused());
  form.box.Enabled(true);
  form.box.Visible(false);
  EXPECT_TRUE(refused());
  form.box.Visible(true);
  form.Enabled(false);
  EXPECT_TRUE(refused());
  form.Enabled(true);
  EXPECT_FALSE(refused());
}

}  // namespace
}  // namespace toolkit::testing
