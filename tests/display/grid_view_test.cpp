// SPDX-License-Identifier: MIT
#include "display/grid_view.h"

#include "display/display_test.h"

namespace kalvon::testing {

namespace {

using GridView = DisplayTest;

/// A cell to draw into at pixel (28, 28), with white below it.
CrosswordText Frame() { return {.rows = {"ABC", "###", "...", "DEF"}}; }

struct Pixel {
  int x, y;
  unsigned colour;
};

struct CellCase {
  const char* name;
  const char* cell;
  std::vector<Pixel> pixels;  ///< Counted from the top left pixel of the cell.
};

const CellCase cell_cases[] = {
    {"black square", "$2$", {{3, 4, white}, {4, 4, black}, {22, 22, black}, {23, 22, white}}},
    {"gray block", "$1$", {{0, 0, white}, {1, 0, gray}, {26, 26, gray}, {0, 26, white}}},
    {"other blocked cell", "$7$", {{1, 0, white}, {13, 13, white}}},
    {"empty cell", "", {{1, 0, white}, {13, 13, white}, {27, 13, black}}},
    {"no mark", "K$0$0$0$00", {{27, 5, black}, {5, 27, black}, {13, 8, white}}},
    {"ring", "K$0$1$0$00", {{13, 8, black}, {3, 18, black}, {23, 18, black}, {13, 28, white}}},
    {"right border",
     "K$0$0$0$10",
     {{27, 3, black},
      {27, 4, white},
      {27, 7, white},
      {27, 8, black},
      {27, 12, white},
      {27, 15, white},
      {27, 16, black},
      {27, 20, white},
      {27, 23, white},
      {27, 24, black}}},
    {"left border",
     "K$0$0$0$20",
     {{-1, 3, black}, {-1, 4, white}, {-1, 23, white}, {27, 5, black}}},
    {"bottom border",
     "K$0$0$0$01",
     {{3, 27, black},
      {4, 27, white},
      {7, 27, white},
      {8, 27, black},
      {15, 27, white},
      {20, 27, white},
      {23, 27, white},
      {24, 27, black}}},
    {"top border", "K$0$0$0$09", {{3, -1, black}, {4, -1, white}, {5, 27, black}}},
    {"marks are digits", "K$0$0$0$xy", {{27, 5, black}, {5, 27, black}}},
    {"one character behind the first $", "K$1", {{27, 5, black}, {5, 27, white}}},
    {"nothing behind the first $", "K$", {{27, 5, black}, {5, 27, black}}},
};

TEST_F(GridView, DrawsEachKindOfCellToThePixel) {
  LoadText(Frame());
  for (const CellCase& c : cell_cases) {
    glavni.ukr_polja.Mutable(2, 2, 1) = c.cell;
    crtaj_ukrstenicu();
    for (const auto [x, y, colour] : c.pixels)
      EXPECT_EQ(PixelOf("pic_ukr", 28 + x, 28 + y), colour) << c.name << " at " << x << "," << y;
  }
}

TEST_F(GridView, ShowsTheUsersLetterAndNeverTheSolution) {
  LoadText(Frame());
  const auto ink = [&](const char* cell) {
    glavni.ukr_polja.Mutable(2, 2, 1) = cell;
    crtaj_ukrstenicu();
    return Ink(CellImage(2, 2));
  };
  EXPECT_EQ(ink("K$0$0$0$00"), 0);
  EXPECT_EQ(ink("KAB0$0$0$00"), 0);  // Without a "$" in the third place it is no letter.
  EXPECT_GT(ink("KA$0$0$0$00"), 30);
  const QImage letter = CellImage(2, 2);
  EXPECT_EQ(Ink(letter.copy(0, 0, 27, 8)), 0);  // The letter's line begins at pixel 8.
  ink("BA$0$0$0$00");
  EXPECT_EQ(CellImage(2, 2), letter);
}

TEST_F(GridView, CentresADigraphByItsMeasuredWidth) {
  frm_opcije->opt_opcije(1).Value(true);
  frm_opcije->opt_opcije1(0).Value(true);
  LoadText(Frame());
  for (const char* cell : {"KQ$0$0$0$00", "KX$0$0$0$00", "KI$0$0$0$00", "KM$0$0$0$00"}) {
    glavni.ukr_polja.Mutable(2, 2, 1) = cell;
    crtaj_ukrstenicu();
    const QImage image = CellImage(2, 2);
    int left = 0;
    int right = 26;
    while (left < 27 && Ink(image.copy(left, 0, 1, 27)) == 0) ++left;
    while (right >= 0 && Ink(image.copy(right, 0, 1, 27)) == 0) --right;
    EXPECT_NEAR(left + right, 27, 4) << cell;
  }
}

TEST_F(GridView, NumbersACellAlsoOnABlock) {
  LoadText(Frame());
  glavni.rec_broj.Mutable(2, 2) = 7;
  crtaj_ukrstenicu();
  EXPECT_GT(Ink(CellImage(2, 2).copy(1, 1, 9, 12)), 5);
}

TEST_F(GridView, EndsWithTheGrid) {
  struct Case {
    int width, height;
    int max_hor, max_ver;
  };
  for (const auto [width, height, max_hor, max_ver] :
       {Case{6, 4, 0, 0}, {15, 15, 0, 0}, {16, 14, 1, 0}, {3, 17, 0, 2}}) {
    LoadText({.rows = std::vector<std::string>(static_cast<std::size_t>(height),
                                               std::string(static_cast<std::size_t>(width), 'A'))});
    EXPECT_EQ(frm_glavni->scr_hor.Max(), max_hor);
    EXPECT_EQ(frm_glavni->scr_ver.Max(), max_ver);
    for (int k = 1; k <= 15; ++k) {
      const int pixel = (k - 1) * 28 + 14;
      const std::string where =
          std::to_string(width) + "x" + std::to_string(height) + " cell " + std::to_string(k);
      EXPECT_EQ(PixelOf("pic_ukr", pixel, 418) == gray, k > width || height < 15) << where;
      EXPECT_EQ(PixelOf("pic_ukr", 418, pixel) == gray, k > height || width < 15) << where;
      EXPECT_EQ(PixelOf("pic_ukr", k * 28 - 1, 417), black) << where;
      EXPECT_EQ(PixelOf("pic_ukr", 417, k * 28 - 1), black) << where;
      EXPECT_EQ(Ink(Shown("pic_brojevi(1)").copy((k - 1) * 28, 0, 28, 15)) > 0, k <= width)
          << where;
      EXPECT_EQ(Ink(Shown("pic_brojevi(0)").copy(0, (k - 1) * 28, 15, 27)) > 0, k <= height)
          << where;
    }
  }
}

TEST_F(GridView, RulersShowTheLastDigit) {
  LoadText({.rows = std::vector<std::string>(30, std::string(30, 'A'))});
  const auto digit = [&](int k) { return Shown("pic_brojevi(1)").copy((k - 1) * 28, 0, 28, 15); };
  const QImage ten = digit(10);
  const QImage three = digit(3);
  EXPECT_NE(ten, three);
  frm_glavni->scr_hor.Value(10);
  EXPECT_EQ(digit(10), ten);
  EXPECT_EQ(digit(3), three);
  frm_glavni->scr_hor.Value(9);
  EXPECT_EQ(digit(1), ten);
}

TEST_F(GridView, GoesOnAfterACellThatFails) {
  LoadText(Frame());
  glavni.ukr_polja = Table<std::string, 3>({{{0, 1}, {0, 1}, {0, 2}}});
  glavni.ukr_polja.Mutable(1, 1, 1) = "$2$";
  crtaj_ukrstenicu();
  EXPECT_EQ(PixelOf("pic_ukr", 10, 10), black);
  EXPECT_GT(Ink(CellImage(1, 4)), 5) << "the number of a cell whose string cannot be read";
  EXPECT_GT(Ink(Shown("pic_brojevi(0)").copy(0, 84, 15, 28)), 0);
}

}  // namespace

}  // namespace kalvon::testing
