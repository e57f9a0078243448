// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>

#include "shell/toolkit/control_form.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit::testing {
namespace {

class PictureBoxTest : public ::testing::Test {
 protected:
  QImage Drawn() { return surface->Shown().copy(); }
  /// What has come to the screen, with one pixel more on each side but the top.
  QImage OnScreen() {
    const QRect place = surface->geometry().adjusted(-1, 0, 1, 1);
    QScreen* screen = form.InnerWidget()->screen();
    return screen
        ->grabWindow(form.InnerWidget()->winId(), place.x(), place.y(), place.width(),
                     place.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
  }

  ControlForm form;
  PictureBox& picture = form.picture;
  Surface* const surface = form.Widget<Surface>("picture");
};

TEST_F(PictureBoxTest, WhatIsDrawnReachesTheScreen) {
  picture.CurrentX(10);
  picture.CurrentY(10);
  const std::function<void()> steps[] = {
      [&] { picture.FilledBox(4, 5, 9, 8, 0x0000FF); },
      [&] { picture.Line(30, 2, 30, 7, 0); },
      [&] { picture.Circle(30, 25, 10, 1.7F * 3.14F, 1.4F * 3.14F); },
      [&] { picture.Print("j\xC5\xBDg"); },
      [&] { picture.PaintPicture(BuiltInPicture("icon_text.bmp"), 40, 30); },
      [&] { picture.BackColor(0xC0C0C0); },
      [&] { picture.Framed(); },
  };
  for (const auto& draw : steps) {
    SCOPED_TRACE(&draw - steps);
    const QImage before = OnScreen();
    draw();
    QApplication::processEvents();
    EXPECT_NE(OnScreen(), before);
    EXPECT_EQ(OnScreen().copy(1, 0, 60, 50), Drawn());
  }
  EXPECT_EQ(OnScreen().pixelColor(0, 20), Qt::black);
  EXPECT_EQ(OnScreen().pixelColor(61, 50), Qt::black);

  picture.Persistent(false);
  picture.FilledBox(1, 1, 58, 48, 0xFF0000);
  EXPECT_EQ(OnScreen().pixelColor(58, 48), Qt::blue) << "at once";
  form.Hide();
  EXPECT_EQ(Drawn().pixelColor(58, 48), QColor(0xC0C0C0));
}

TEST_F(PictureBoxTest, ADrawingOutlivesAnotherSizeAndHiding) {
  picture.AutoSize(true);
  picture.Picture(BuiltInPicture("title.bmp"));
  EXPECT_EQ(Drawn().size(), QSize(420, 420));
  picture.FilledBox(0, 0, 59, 49, 0);
  picture.Width(50);
  form.Hide();
  form.Show();
  EXPECT_EQ(Drawn().size(), QSize(50, 420));
  EXPECT_EQ(Drawn().pixelColor(49, 49), Qt::black);
}

TEST_F(PictureBoxTest, EachPressOfTheMouseCounts) {
  std::vector<std::vector<double>> presses;
  int clicks = 0;
  picture.MouseDown = [&](double button, double shift, double x, double y) {
    presses.push_back({button, shift, x, y});
  };
  picture.Click = [&] { ++clicks; };
  QTest::mouseClick(surface, Qt::LeftButton, Qt::ShiftModifier, {10, 20});
  picture.ScaleMode(Scale::twips);
  QTest::mouseClick(surface, Qt::RightButton, {}, {5, 6});
  QTest::mouseDClick(surface, Qt::MiddleButton, {}, {5, 6});  // The second press of the two.
  QTest::mouseRelease(surface, Qt::MiddleButton, {}, {5, 50});
  picture.Enabled(false);
  QTest::mouseClick(surface, Qt::LeftButton);
  EXPECT_EQ(presses,
            (std::vector<std::vector<double>>{{1, 1, 10, 20}, {2, 0, 75, 90}, {4, 0, 75, 90}}));
  EXPECT_EQ(clicks, 2) << "the third time the button was let go outside";
}

}  // namespace
}  // namespace toolkit::testing
