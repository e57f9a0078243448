// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QScreen>
#include <QWheelEvent>

#include "shell/toolkit/control_form.h"
#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit::testing {

class PictureBoxTest : public ::testing::Test {
 protected:
  QImage Drawn() { return surface->Shown().copy(); }
  /// What has come to the screen, with one pixel more on each side but the top.
  QImage OnScreen() {
    const QRect place = surface->geometry().adjusted(-1, 0, 1, 1);
    const QPixmap window = form.Host()->screen()->grabWindow(form.Host()->winId());
    return window.copy(place).toImage().convertToFormat(QImage::Format_RGB32);
  }

  ControlForm form;
  PictureBox& picture = form.picture;
  Surface* const surface = form.Widget<Surface>("picture");
};

TEST_F(PictureBoxTest, WhatIsDrawnReachesTheScreen) {
  const std::function<void()> steps[] = {
      [&] { picture.FilledBox(4, 5, 9, 8, 0x0000FF); },
      [&] { picture.Circle(30, 25, 10, 5.3F, 4.4F); },
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

TEST_F(PictureBoxTest, ByAnyZoomMarksComeOffAndBoxesShareNoPixel) {
  const auto invert = [&](int x1, int y1, int x2, int y2) {
    picture.DrawMode(DrawMode::exclusive_or);
    picture.FilledBox(x1, y1, x2, y2, 0x800000);
    picture.DrawMode(DrawMode::copy);
  };
  for (int step = 16; step <= 80; ++step) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
      SCOPED_TRACE(step * ratio / 20);
      Zoom(step * ratio / 20);  // The ratio of a screen multiplies as the zoom does.
      picture.Rescale();
      picture.BackColor(0xFFFFFF);
      for (const int line : {13, 27, 41}) picture.Line(0, line, 59, line, 0);
      picture.Print("\xC5\xBDiG");
      const QImage before = Drawn();
      for (const bool marked : {true, false}) {
        invert(0, 14, 59, 26);
        invert(28, 0, 28 + 26, 26);
        EXPECT_EQ(Drawn() != before, marked);
      }
      for (int x = 0; x < 60; x += 2) invert(x, 0, x + 1, 49);
      invert(0, 0, 59, 49);
      EXPECT_EQ(Drawn(), before);
    }
  }
  Zoom(1);
}

TEST_F(PictureBoxTest, TheWheelMovesTheBarOfItsDirectionAndElseTheOneThatCanMove) {
  ScrollBar level(form, {"level", {0, 110, 100, 17}, 7}, Orientation::horizontal);
  picture.WheelMoves(form.bar);
  picture.WheelMoves(level);
  const auto turn = [&](QPoint angle, Qt::KeyboardModifiers keys = {}) {
    const int before[] = {form.bar.Value(), level.Value()};
    QWheelEvent event({5, 5}, {5, 5}, {}, angle, {}, keys, Qt::NoScrollPhase, false);
    QApplication::sendEvent(surface, &event);
    return std::pair(form.bar.Value() - before[0], level.Value() - before[1]);
  };
  EXPECT_EQ(turn({0, -120}), std::pair(3, 0));
  EXPECT_EQ(turn({-120, 0}), std::pair(0, 3));
  EXPECT_EQ(turn({0, -120}, Qt::ShiftModifier), std::pair(0, 3));
  form.bar.Max(3);
  form.bar.Min(3);
  EXPECT_EQ(turn({0, 120}), std::pair(0, -3));
}

}  // namespace toolkit::testing
