// SPDX-License-Identifier: MIT
#include "display/grid_view.h"

#include <QBitmap>
#include <QPainter>

#include "support/puzzle_test.h"

namespace kalvon::testing {

const QColor white = Qt::white, black = Qt::black, gray(0xC0, 0xC0, 0xC0);

class GridView : public PuzzleTest {
 protected:
  void SetUp() override {
    PuzzleTest::SetUp();
    Solve({.rows = {"ABC", "###", "...", "DEF"}});
  }

  /// Draws another cell at pixel (28, 28), between letters, gray blocks and empty cells.
  QImage Drawn(const std::string& cell) {
    glavni.ukr_polja.Mutable(2, 2, 1) = cell;
    crtaj_ukrstenicu();
    return Shown("pic_ukr").copy(27, 27, 30, 30);
  }

  /// Where the dark pixels lie.
  static QRect Ink(const QImage& image) {
    return QRegion(QBitmap::fromImage(image, Qt::ThresholdDither)).boundingRect();
  }
};

struct CellCase {
  const char* cell;
  QColor colour;
  std::vector<QRect> boxes;  ///< In white between black lines, from the cell's top left pixel.
};

const CellCase cell_cases[] = {
    {"$2$", black, {{4, 4, 19, 19}}},
    {"$1$", gray, {{1, 0, 26, 27}}},
    {"$7$", white, {}},
    {"", white, {}},
    {"K$0$0$0$00", white, {}},
    {"K$0$0$0$10", white, {{27, 4, 1, 4}, {27, 12, 1, 4}, {27, 20, 1, 4}}},
    {"K$0$0$0$20", white, {{-1, 4, 1, 4}, {-1, 12, 1, 4}, {-1, 20, 1, 4}}},
    {"K$0$0$0$01", white, {{4, 27, 4, 1}, {12, 27, 4, 1}, {20, 27, 4, 1}}},
    {"K$0$0$0$09", white, {{4, -1, 4, 1}, {12, -1, 4, 1}, {20, -1, 4, 1}}},
    {"K$0$0$0$xy", white, {}},
    {"K$1", white, {{4, 27, 4, 1}, {12, 27, 4, 1}, {20, 27, 4, 1}}},
    {"K$", white, {}},
    {"KAB0$0$0$00", white, {}},  // Without a "$" in the third place it is no letter.
};

TEST_F(GridView, DrawsEachKindOfCellToThePixel) {
  for (const CellCase& c : cell_cases) {
    const QImage shown = Drawn(c.cell);
    QImage expected(shown.size(), shown.format());
    expected.fill(black);
    QPainter painter(&expected);
    painter.translate(1, 1);
    for (const QRect& inside :
         {QRect(0, 0, 27, 27), {28, 0, 1, 27}, {0, 28, 27, 1}, {28, 28, 1, 1}})
      painter.fillRect(inside, white);
    for (const QRect& box : c.boxes) painter.fillRect(box, c.colour);
    EXPECT_TRUE(shown == expected) << c.cell;
  }
  const QImage ring = Drawn("K$0$1$0$00");
  for (const QPoint arc : {QPoint(14, 9), {4, 19}, {24, 19}})
    EXPECT_EQ(ring.pixelColor(arc), black) << arc.x();
  for (const QPoint gap : {QPoint(14, 29), {14, 19}})
    EXPECT_EQ(ring.pixelColor(gap), white) << gap.y();
}

TEST_F(GridView, ShowsTheUsersLetterInTheMiddleAndNeverTheSolution) {
  const auto inside = [&](const std::string& cell) { return Drawn(cell).copy(1, 1, 27, 27); };
  int height_of_m[] = {0, 0};
  for (const int layout : {0, 1}) {
    Choose(1, layout);
    for (const std::string letter : {"A", "Q", "[", "I", "M"}) {
      const QImage cell = inside('K' + letter + "$0$0$0$00");
      EXPECT_NEAR(Ink(cell).left() + Ink(cell).right(), layout == 0 ? 27 : 24, 3) << letter;
      EXPECT_GE(Ink(cell).top(), 8) << letter;
      EXPECT_TRUE(inside('B' + letter + "$0$0$0$00") == cell) << "the solution shows";
      height_of_m[layout] = Ink(cell).height();
    }
  }
  EXPECT_LT(height_of_m[1], height_of_m[0]) << "a standard font is printed smaller";
}

TEST_F(GridView, ARingHidesNoPartOfALetter) {
  const auto dark = [&](const std::string& cell) {
    return QRegion(QBitmap::fromImage(Drawn(cell).copy(1, 1, 27, 27), Qt::ThresholdDither));
  };
  const QRegion ring = dark("K$0$1$0$00");
  for (const int layout : {0, 1}) {
    Choose(1, layout);
    for (const std::string letter : {"C", "^", "]", "[", "@", "\\"})
      EXPECT_TRUE(!ring.intersects(dark('K' + letter + "$0$0$0$00"))) << letter << layout;
  }
}

TEST_F(GridView, EndsWithTheGrid) {
  for (const auto& [width, height] : {std::pair{6, 15}, {16, 4}}) {
    Solve({.rows = std::vector(std::size_t(height), std::string(std::size_t(width), '.'))});
    EXPECT_EQ(frm_glavni->scr_hor.Max(), std::max(0, width - 15));
    EXPECT_EQ(frm_glavni->scr_ver.Max(), 0);
    const QImage shown = Shown("pic_ukr");
    QImage expected(shown.size(), shown.format());
    expected.fill(white);
    QPainter painter(&expected);
    if (width < 15) painter.fillRect(width * 28, 1, 420, 420, gray);
    if (height < 15) painter.fillRect(1, height * 28, 420, 420, gray);
    for (int line = 27; line < 420; line += 28) {
      painter.fillRect(line, 0, 1, 420, black);
      painter.fillRect(0, line, 420, 1, black);
    }
    EXPECT_TRUE(shown == expected) << width;
  }
}

TEST_F(GridView, NumbersWordStartsAndRulers) {
  Solve({.rows = std::vector(20, std::string(11, 'A'))});
  for (int k = 1; k <= 15; ++k) {
    const QImage start = Shown("pic_ukr").copy((k - 1) * 28, 0, 27, 27);
    EXPECT_EQ(Ink(start.copy(1, 1, 9, 12)).height() > 5, k <= 11) << k;
  }
  const auto digit = [&](int ruler, int k) {
    const int cell = (k - 1) * 28;
    return ruler == 0 ? Shown("pic_brojevi(0)").copy(0, cell, 15, 27)
                      : Shown("pic_brojevi(1)").copy(cell, 2, 28, 13);
  };
  for (const int ruler : {0, 1}) {
    EXPECT_TRUE(digit(ruler, 11) == digit(ruler, 1));
    EXPECT_FALSE(digit(ruler, 10) == digit(ruler, 1));
    EXPECT_EQ(Ink(digit(ruler, 12)).isEmpty(), ruler == 1);
    const QRect middle = ruler == 0 ? QRect(4, 5, 9, 15) : QRect(8, 1, 11, 11);
    EXPECT_TRUE(middle.contains(Ink(digit(ruler, 8))));
  }
  const QImage six = digit(0, 6);
  frm_glavni->scr_ver.Value(5);
  EXPECT_TRUE(digit(0, 1) == six);
}

using FontChange = PuzzleTest;

TEST_F(FontChange, ReachesEveryControlThatShowsLetters) {
  Solve({.rows = {"ABC", "D#E", "FGH"}, .letters = {"[^A"}});
  const QImage own_grid = Shown("pic_ukr");
  for (const auto& [script, layout, font, charset, list_size] :
       {std::tuple{0, 0, "C_Kalvon", 0, 9.0},
        {0, 1, "Arial", 204, 8.0},
        {1, 1, "Arial", 238, 8.0},
        {1, 0, "Kalvon", 0, 9.0}}) {
    Choose(script, layout);
    const auto expect_font = [name = font, code = charset](toolkit::Control& control) {
      EXPECT_EQ(control.FontName(), name);
      EXPECT_EQ(control.Charset(), code);
    };
    frm_glavni->pic_tekst.ForEach(expect_font);
    frm_glavni->txt_rec.ForEach(expect_font);
    frm_glavni->txt_media.ForEach(expect_font);
    expect_font(frm_glavni->pic_ukr);
    for (const int list : {0, 1}) EXPECT_EQ(frm_glavni->pic_tekst(list).FontSize(), list_size);
    EXPECT_EQ(Shown("pic_ukr") == own_grid, std::string(font) == "Kalvon");
    ExpectScreenOfState();
  }
}

}  // namespace kalvon::testing
