// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTest>
#include <map>
#include <vector>

#include "shell/toolkit/control_form.h"
#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit::testing {
namespace {

class PictureBoxTest : public ::testing::Test {
 protected:
  void SetUp() override { form.Show(); }

  unsigned Pixel(int x, int y) {
    return form.Widget<Surface>("picture")->Shown().pixel(x, y) & 0xFFFFFFU;
  }
  QImage Whole() { return form.Widget<Surface>("picture")->Shown().copy(); }

  ControlForm form;
};

TEST_F(PictureBoxTest, BoxesAndSegmentsHaveBothCorners) {
  form.picture.FilledBox(4, 5, 8, 9, 0x0000FF);
  EXPECT_EQ(Pixel(4, 5), 0xFF0000U) << "red is the low byte";
  EXPECT_EQ(Pixel(8, 9), 0xFF0000U);
  EXPECT_EQ(Pixel(3, 5), 0xFFFFFFU);
  EXPECT_EQ(Pixel(9, 9), 0xFFFFFFU);
  EXPECT_EQ(Pixel(8, 10), 0xFFFFFFU);
  form.picture.FilledBox(20, 4, 20, 7, 0);
  EXPECT_EQ(Pixel(20, 3), 0xFFFFFFU);
  EXPECT_EQ(Pixel(20, 4), 0U);
  EXPECT_EQ(Pixel(20, 7), 0U);
  EXPECT_EQ(Pixel(20, 8), 0xFFFFFFU);
  EXPECT_EQ(Pixel(21, 5), 0xFFFFFFU);
  form.picture.Line(30, 2, 34, 2, 0);
  EXPECT_EQ(Pixel(30, 2), 0U);
  EXPECT_EQ(Pixel(34, 2), 0U);
  EXPECT_EQ(Pixel(35, 2), 0xFFFFFFU);
}

TEST_F(PictureBoxTest, TheExclusiveOrPenRestoresEveryPixel) {
  form.picture.FontSize(14);
  form.picture.Print("Aq");
  form.picture.Circle(30, 30, 10, 0.5F, 6.0F);
  const QImage before = Whole();
  form.picture.DrawMode(DrawMode::exclusive_or);
  form.picture.FilledBox(0, 0, 59, 49, 0x800000);
  EXPECT_EQ(Pixel(59, 49), 0xFFFF7FU) << "white turns pale yellow";
  EXPECT_NE(Whole(), before);
  form.picture.FilledBox(0, 0, 59, 49, 0x800000);
  EXPECT_EQ(Whole(), before);
}

TEST_F(PictureBoxTest, PrintLeavesTheBackgroundAndStartsAtThePosition) {
  form.picture.FilledBox(0, 0, 59, 49, 0xC0C0C0);
  form.picture.CurrentX(20);
  form.picture.CurrentY(10);
  form.picture.Print("M");
  EXPECT_EQ(Pixel(19, 15), 0xC0C0C0U);
  EXPECT_EQ(Pixel(20, 9), 0xC0C0C0U);
  bool dark = false;
  for (int x = 20; x < 32; ++x)
    for (int y = 10; y < 26; ++y) dark = dark || (Pixel(x, y) & 0xFFU) < 0x40;
  EXPECT_TRUE(dark);
}

TEST_F(PictureBoxTest, TheArcLeavesItsGapOpen) {
  form.picture.Circle(30, 25, 10, 1.7F * 3.14F, 1.4F * 3.14F);
  EXPECT_EQ(Pixel(30, 15), 0U) << "top";
  EXPECT_EQ(Pixel(20, 25), 0U) << "left";
  EXPECT_EQ(Pixel(40, 25), 0U) << "right";
  for (int y = 33; y <= 36; ++y) EXPECT_EQ(Pixel(30, y), 0xFFFFFFU) << "gap at the bottom";
}

TEST_F(PictureBoxTest, NoPictureClearsTheSurface) {
  form.picture.FilledBox(0, 0, 59, 49, 0);
  form.picture.Picture(LoadPicture(""));
  EXPECT_EQ(Pixel(30, 30), 0xFFFFFFU);
}

TEST_F(PictureBoxTest, APictureIsShownAndGivesItsSize) {
  form.picture.AutoSize(true);
  form.picture.Picture(BuiltInPicture("title.bmp"));
  EXPECT_EQ(form.picture.Width(), 420);
  EXPECT_EQ(form.picture.Height(), 420);
  EXPECT_EQ(Pixel(419, 419), 0xFFFFFFU);
  EXPECT_THROW(BuiltInPicture("missing.bmp"), files::RuntimeError);
}

TEST_F(PictureBoxTest, BuiltInPicturesHaveTheFormatsOfTheirTime) {
  const std::map<QString, qint64> sizes = {{"title.bmp", 177480},    {"icon_picture.bmp", 1222},
                                           {"icon_text.bmp", 1222},  {"icon_sound.bmp", 1222},
                                           {"icon_video.bmp", 1222}, {"kalvon.ico", 766}};
  for (const auto& [name, size] : sizes)
    EXPECT_EQ(QFile(":/pictures/" + name).size(), size) << name.toStdString();
}

TEST_F(PictureBoxTest, OnlyAPersistentSurfaceKeepsItsDrawingWhileHidden) {
  form.picture.FilledBox(0, 0, 59, 49, 0);
  form.Hide();
  form.Show();
  EXPECT_EQ(Pixel(1, 1), 0U);
  form.picture.Persistent(false);
  form.Hide();
  form.Show();
  EXPECT_EQ(Pixel(1, 1), 0xFFFFFFU);
}

TEST_F(PictureBoxTest, EachPressOfTheMouseCounts) {
  std::vector<int> presses;
  int clicks = 0;
  form.picture.MouseDown = [&](int button, int shift, double x, double y) {
    presses.push_back(button * 1000000 + shift * 10000 + static_cast<int>(x) * 100 +
                      static_cast<int>(y));
  };
  form.picture.Click = [&] { ++clicks; };
  QWidget* surface = form.Widget("picture");
  QTest::mouseClick(surface, Qt::LeftButton, Qt::ShiftModifier, {10, 20});
  QTest::mouseClick(surface, Qt::RightButton, {}, {5, 6});
  QTest::mouseDClick(surface, Qt::RightButton, {}, {5, 6});  // The second press of the two.
  EXPECT_EQ(presses, (std::vector<int>{1011020, 2000506, 2000506}));
  EXPECT_EQ(clicks, 2);
  form.picture.Enabled(false);
  QTest::mouseClick(surface, Qt::LeftButton);
  EXPECT_EQ(presses.size(), 3U);
}

}  // namespace
}  // namespace toolkit::testing
