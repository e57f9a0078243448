// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QScreen>
#include <QWheelEvent>

#include "shell/toolkit/control_form.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit::testing {

class PictureBoxTest : public ::testing::Test {
 protected:
  QImage Drawn() { return surface->Shown().copy(); }
  /// What has come to the screen, with one pixel more on each side but the top.
  QImage OnScreen() {
    const QRect place = surface->geometry().adjusted(-1, 0, 1, 1);
    const QPixmap window = form.InnerWidget()->screen()->grabWindow(form.InnerWidget()->winId());
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
