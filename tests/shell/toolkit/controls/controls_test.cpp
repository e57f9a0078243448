// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

#include "files/run_time_error.h"
#include "shell/toolkit/control_form.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/events/program_end.h"

namespace toolkit::testing {

class ControlsTest : public ::testing::Test {
 protected:
  void PressButton() { QTest::mouseClick(form.Widget("button"), Qt::LeftButton); }
  void PressWithAlt(Qt::Key key) {
    QTest::sendKeyEvent(QTest::Click, form.Host(), key, QString(), Qt::AltModifier);
  }
  ControlForm form;
  int raised = 0;
};

TEST_F(ControlsTest, AScrollBarRaisesChangeWhenItsValueIsAnother) {
  std::string values;
  form.bar.Change = [&] { values += std::to_string(form.bar.Value()) + ' '; };
  auto* thumb = form.Widget<QScrollBar>("bar");
  thumb->setSliderDown(true);
  thumb->setSliderPosition(40);
  EXPECT_EQ(values, "") << "it acts when the thumb is let go";
  thumb->setSliderDown(false);
  form.bar.Max(10);
  for (const int value : {4, 4, 99}) form.bar.Value(value);
  form.bar.Max(3);
  form.bar.Min(5);
  EXPECT_EQ(values, "40 10 4 10 3 5 ") << "a Max below Min leaves Min";
  for (const int value : {-32769, 32768})
    EXPECT_EQ(files::pass_over([&] { form.bar.Value(value); }), 380);
}

TEST_F(ControlsTest, ADisabledFormLooksAsBeforeAndTakesNoInputAndNothingDoesAfterTheEnd) {
  form.button.Click = [&] {
    const Hourglass busy;
    raised += Screen::MousePointer();
    End();
  };
  form.Unload = [&](bool&) { ++raised; };
  const QImage before = form.Host()->grab().toImage();
  form.Enabled(false);
  PressButton();
  for (const Qt::Key key : {Qt::Key_R, Qt::Key(u'Р')}) PressWithAlt(key);
  form.Host()->close();
  EXPECT_FALSE(QTest::qWaitFor([&] { return raised != 0; }, 150)) << "Alt presses for 100 ms";
  EXPECT_EQ(form.Host()->grab().toImage(), before);
  form.Enabled(true);
  PressButton();
  PressButton();
  EXPECT_EQ(raised, 11);
  Restart();
}

TEST_F(ControlsTest, AltWithTheSameLetterOfACyrillicKeyboardPressesAButton) {
  form.button.Click = [&] { ++raised; };
  for (const char* caption : {"&Re{i", "S&olve"}) {
    form.button.Caption(caption);
    for (const Qt::Key key : {Qt::Key(u'Р'), Qt::Key(u'О')}) PressWithAlt(key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }));
    raised = 0;
  }
}

}  // namespace toolkit::testing
