// SPDX-License-Identifier: MIT
#include "printing/grid_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "crossword/cell.h"
#include "crossword/fields.h"
#include "letters/unicode_text.h"
#include "printing/face.h"

namespace kalvon::printing {
namespace {

constexpr double thin = 0.5;
constexpr double thick = 1.1;
constexpr double block_shade = 0.72;
constexpr double ruler_size = 7;

// In sides of a cell.
constexpr double letter_size = 0.6;
constexpr double letter_baseline = 0.87;
constexpr double widest_letter = 0.84;
constexpr double number_size = 0.3;
constexpr double square_inset = 0.15;

/// Numbers of clues can be read but leave room for the letter. Points.
constexpr double smallest_number = 5;
constexpr double largest_number = 7.5;

/// Draws one part of a grid.
class GridDrawing {
 public:
  GridDrawing(const Sheet& sheet, const GridPart& part, const GridLook& look, QPointF at,
              Drawing& drawing)
      : sheet_(sheet), part_(part), look_(look), corner_(at), drawing_(drawing) {
    if (look.rulers) corner_ += QPointF(ruler, ruler);
  }

  void Draw() {
    DrawLines();
    if (look_.rulers) DrawRulers();
    for (int y = part_.row; y < part_.row + part_.rows; ++y)
      for (int x = part_.column; x < part_.column + part_.columns; ++x) DrawCell(x, y);
  }

 private:
  [[nodiscard]] QRectF PlaceOf(int x, int y) const {
    const double side = look_.cell;
    return {corner_.x() + (x - part_.column) * side, corner_.y() + (y - part_.row) * side, side,
            side};
  }

  void DrawLines() {
    const double width = part_.columns * look_.cell;
    const double height = part_.rows * look_.cell;
    const auto line = [&](double x, double y, QPointF along, double pen) {
      const QPointF from = corner_ + QPointF(x, y);
      drawing_.strokes.push_back({QLineF(from, from + along), pen});
    };
    const auto pen = [](int i, int count) { return i == 0 || i == count ? thick : thin; };
    for (int i = 0; i <= part_.columns; ++i)
      line(i * look_.cell, 0, {0, height}, pen(i, part_.columns));
    for (int i = 0; i <= part_.rows; ++i) line(0, i * look_.cell, {width, 0}, pen(i, part_.rows));
  }

  /// Where the cells are smaller than their numbers, only some have one.
  void DrawRulers() {
    const int last = part_.column + part_.columns - 1;
    const double widest = RulerSize(last) * WidthOf(QString::number(last), false);
    const double above = -(look_.cell + ruler) / 2;
    const int step = StepFor(widest + 2);
    for (int x = part_.column; x + step / 2 <= last; x += step)
      DrawRuler(x, PlaceOf(x, part_.row).translated(0, above));
    for (int y = part_.row; y < part_.row + part_.rows; y += StepFor(ruler_size))
      DrawRuler(y, PlaceOf(part_.column, y).translated(above, 0));
  }

  /// Cells that a number takes.
  [[nodiscard]] int StepFor(double length) const {
    return static_cast<int>(std::ceil(length / look_.cell));
  }

  static double RulerSize(int number) {
    return std::min(ruler_size, (ruler - 1) / WidthOf(QString::number(number), false));
  }

  void DrawRuler(int number, const QRectF& around) {
    const QString text = QString::number(number);
    const double size = RulerSize(number);
    QRectF place(0, 0, WidthOf(text, false) * size, FaceHeight() * size);
    place.moveCenter(around.center());
    drawing_.texts.push_back({place, text, size});
  }

  void DrawCell(int x, int y) {
    const std::string& cell = sheet_.crossword.ukr_polja(x, y, 1);
    const QRectF place = PlaceOf(x, y);
    if (cell == gray_block) drawing_.boxes.push_back({place, block_shade});
    if (cell == black_square) {
      const double inset = square_inset * look_.cell;
      drawing_.boxes.push_back({place.adjusted(inset, inset, -inset, -inset), 0});
    }
    if (!IsLetterCell(cell)) return;
    DrawBrokenBorders(cell, place);
    if (look_.letters == Letters::solution)
      DrawLetter(cell[0], place);
    else if (look_.letters == Letters::users && ShowsUserLetter(cell))
      DrawLetter(cell[1], place);
    if (look_.numbers && sheet_.crossword.rec_broj(x, y) > 0)
      DrawNumber(sheet_.crossword.rec_broj(x, y), place);
  }

  /// A blank in an answer: 1 breaks the far border of a cell, right or bottom, and a higher digit
  /// the near one.
  void DrawBrokenBorders(std::string_view cell, const QRectF& place) {
    const std::string_view marks = LastCharacters(Behind(cell, '$'), 2);
    if (marks.size() < 2) return;
    const auto breaks = [](char mark) { return mark > '0' && mark <= '9'; };
    if (breaks(marks[0])) {
      const double x = marks[0] == '1' ? place.right() : place.left();
      DrawGaps({x, place.top()}, {0, look_.cell});
    }
    if (breaks(marks[1])) {
      const double y = marks[1] == '1' ? place.bottom() : place.top();
      DrawGaps({place.left(), y}, {look_.cell, 0});
    }
  }

  /// Three gaps in a line of the grid.
  void DrawGaps(QPointF from, QPointF along) {
    for (const double start : {0.14, 0.425, 0.71}) {
      const QLineF gap(from + along * start, from + along * (start + 0.15));
      drawing_.strokes.push_back({gap, thick + 0.4, 1});
    }
  }

  void DrawLetter(char stored, const QRectF& place) {
    const Writing& writing = sheet_.writing;
    const QString text = writing.english
                             ? QString(QLatin1Char(stored))
                             : QString::fromStdString(UnicodeCapital(stored, writing.latin));
    const double width = WidthOf(text, true);
    const double size = std::min(letter_size, widest_letter / width) * look_.cell;
    const double top = place.top() + letter_baseline * look_.cell - Ascent() * size;
    drawing_.texts.push_back(
        {{place.center().x() - width * size / 2, top, width * size, FaceHeight() * size},
         text,
         size,
         true});
  }

  void DrawNumber(int number, const QRectF& place) {
    const QString text = QString::number(number);
    const double size = std::clamp(number_size * look_.cell, smallest_number, largest_number);
    drawing_.texts.push_back(
        {{place.left() + 1.2, place.top() + 0.3, WidthOf(text, false) * size, FaceHeight() * size},
         text,
         size});
  }

  const Sheet& sheet_;
  const GridPart& part_;
  const GridLook& look_;
  QPointF corner_;  ///< Of the first cell.
  Drawing& drawing_;
};

}  // namespace

QSizeF SizeOf(const GridPart& part, const GridLook& look) {
  const double rulers = look.rulers ? ruler : 0;
  return {part.columns * look.cell + rulers, part.rows * look.cell + rulers};
}

void DrawGrid(const Sheet& sheet, const GridPart& part, const GridLook& look, QPointF at,
              Drawing& drawing) {
  GridDrawing(sheet, part, look, at, drawing).Draw();
}

}  // namespace kalvon::printing
