// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <stdexcept>

#include "shell/toolkit/control_form.h"
#include "shell/toolkit/events/program_end.h"

namespace toolkit::testing {
namespace {

class ControlsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    form.Show();
    QApplication::setActiveWindow(form.InnerWidget());
    QApplication::processEvents();
  }

  ControlForm form;
  int raised = 0;
};

TEST_F(ControlsTest, AScrollBarRaisesChangeWithinTheAssignmentThatMovesItsValue) {
  form.bar.Max(10);
  form.bar.Change = [&] { ++raised; };
  form.bar.Value(4);
  EXPECT_EQ(raised, 1);
  form.bar.Value(4);
  EXPECT_EQ(raised, 1) << "the value was there already";
  form.bar.Value(99);
  EXPECT_EQ(form.bar.Value(), 10) << "held to the range";
  form.bar.Max(3);
  EXPECT_EQ(form.bar.Value(), 3);
  EXPECT_EQ(raised, 3);
}

TEST_F(ControlsTest, AScrollBarWithMaxBelowMinKeepsMin) {
  form.bar.Max(0);
  form.bar.Min(1);
  EXPECT_EQ(form.bar.Value(), 1);
  form.bar.Value(5);
  EXPECT_EQ(form.bar.Value(), 1);
  EXPECT_EQ(form.bar.Max(), 0);
  EXPECT_THROW(form.bar.Max(32768), files::RuntimeError);
}

TEST_F(ControlsTest, AScrollBarActsWhenTheThumbIsLetGo) {
  form.bar.Max(100);
  form.bar.Change = [&] { ++raised; };
  auto* bar = form.Widget<QScrollBar>("bar");
  bar->setSliderDown(true);
  bar->setSliderPosition(40);
  EXPECT_EQ(raised, 0);
  bar->setSliderDown(false);
  EXPECT_EQ(raised, 1);
  EXPECT_EQ(form.bar.Value(), 40);
}

TEST_F(ControlsTest, SettingTextAlwaysRaisesChange) {
  form.box.Change = [&] { ++raised; };
  form.box.Text("a");
  form.box.Text("a");
  EXPECT_EQ(raised, 2);
}

TEST_F(ControlsTest, AnOptionButtonClearsTheOthersOfItsGroup) {
  form.options(0).Value(true);
  form.options(1).Value(true);
  EXPECT_FALSE(form.options(0).Value());
  form.options(1).Value(false);
  EXPECT_FALSE(form.options(1).Value());
  EXPECT_THROW(form.options(2), files::RuntimeError);
}

TEST_F(ControlsTest, AHandlerMayFailAndMayReplaceItself) {
  form.button.Click = [&] {
    form.button.Click = [&] { raised += 10; };
    ++raised;
    throw files::RuntimeError(files::error::overflow);
  };
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  EXPECT_EQ(raised, 1);
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  EXPECT_EQ(raised, 11);
}

TEST_F(ControlsTest, AfterTheEndNoEventIsRaised) {
  form.button.Click = [&] {
    ++raised;
    End();
  };
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  EXPECT_EQ(raised, 1);
  Restart();
}

TEST_F(ControlsTest, ADisabledFormTakesNoInputAndLooksAsBefore) {
  form.button.Click = [&] { ++raised; };
  form.Unload = [&](bool&) { ++raised; };
  const QImage before = form.InnerWidget()->grab().toImage();
  form.Enabled(false);
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  QTest::keyClick(form.Widget("button"), Qt::Key_Space);
  QTest::keyClick(form.InnerWidget(), Qt::Key_R, Qt::AltModifier);
  form.InnerWidget()->close();
  EXPECT_EQ(raised, 0);
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(form.InnerWidget()->grab().toImage(), before);
  EXPECT_THROW(form.box.SetFocus(), files::RuntimeError);
  form.Enabled(true);
  QTest::mouseClick(form.Widget("button"), Qt::LeftButton);
  EXPECT_EQ(raised, 1);
}

TEST_F(ControlsTest, AltAndTheMarkedLetterPressTheButton) {
  form.button.Click = [&] { ++raised; };
  auto* button = form.Widget<QPushButton>("button");
  form.button.FontName("Kalvon");
  EXPECT_EQ(button->text(), QString::fromUtf8("&Reši"));
  EXPECT_EQ(button->shortcut(), QKeySequence::fromString("Alt+R"));
}

TEST_F(ControlsTest, FocusFollowsTheTabIndexes) {
  form.bar.SetFocus();
  QStringList stops;
  for (int i = 0; i < 4; ++i) {
    stops << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(stops.join(' ').toStdString(), "bar box button many");
}

TEST_F(ControlsTest, GotFocusComesFromTheEventLoop) {
  form.picture.GotFocus = [&] { ++raised; };
  form.picture.SetFocus();
  EXPECT_EQ(raised, 0);
  DoEvents();
  EXPECT_EQ(raised, 1);
}

TEST_F(ControlsTest, WhatIsHiddenOrDisabledTakesNoFocus) {
  form.box.Enabled(false);
  EXPECT_THROW(form.box.SetFocus(), files::RuntimeError);
  form.box.Enabled(true);
  form.box.Visible(false);
  EXPECT_THROW(form.box.SetFocus(), files::RuntimeError);
  form.box.Visible(true);
  form.Hide();
  EXPECT_THROW(form.box.SetFocus(), files::RuntimeError);
}

TEST_F(ControlsTest, AnAutoSizeLabelTakesTheWidthOfItsCaptionAtOnce) {
  form.label.AutoSize(true);
  form.label.Caption("i");
  const int narrow = form.label.Width();
  form.label.Caption("iiii");
  EXPECT_EQ(form.label.Width(), 4 * narrow);
  form.label.FontSize(20);
  EXPECT_GT(form.label.Width(), 4 * narrow);
  form.label.Caption("prvi\rdrugi");
  EXPECT_EQ(form.Widget<QLabel>("label")->text(), "prvi\ndrugi");
}

TEST_F(ControlsTest, TheSizeOfAFormCountsItsNominalFrame) {
  EXPECT_EQ(form.Width(), 6000 + 8 * 15);
  EXPECT_EQ(form.Height(), 4500 + 27 * 15);
  form.Resize = [&] { ++raised; };
  form.Height(form.Height() + 300);
  EXPECT_EQ(form.InnerWidget()->height(), 320);
  EXPECT_EQ(raised, 1);
}

}  // namespace
}  // namespace toolkit::testing
