// SPDX-License-Identifier: MIT
#include "printing/painting.h"

#include <QPainter>
#include <QPainterPath>

#include "printing/face.h"

namespace kalvon::printing {
namespace {

QColor Shade(double shade) {
  const int level = qRound(shade * 255);
  return {level, level, level};
}

// The signs of the media, in a square of side 1: what is drawn as lines, and what is filled.
struct SignPaths {
  QPainterPath lines;
  QPainterPath filled;
};

SignPaths PathsOf(Medium medium) {
  SignPaths sign;
  auto& [lines, filled] = sign;
  switch (medium) {
    case Medium::picture:
      lines.addRect(0.04, 0.12, 0.92, 0.76);
      filled.addPolygon(
          QPolygonF({{0.12, 0.8}, {0.42, 0.38}, {0.6, 0.62}, {0.7, 0.5}, {0.88, 0.8}}));
      filled.addEllipse(QPointF(0.72, 0.3), 0.09, 0.09);
      break;
    case Medium::text:
      lines.addRect(0.16, 0.04, 0.68, 0.92);
      for (const double y : {0.27, 0.5, 0.73}) {
        lines.moveTo(0.3, y);
        lines.lineTo(0.7, y);
      }
      break;
    case Medium::sound:
      filled.addPolygon(QPolygonF(
          {{0.02, 0.36}, {0.2, 0.36}, {0.46, 0.1}, {0.46, 0.9}, {0.2, 0.64}, {0.02, 0.64}}));
      lines.moveTo(0.62, 0.3);
      lines.quadTo(0.78, 0.5, 0.62, 0.7);
      lines.moveTo(0.76, 0.14);
      lines.quadTo(1.06, 0.5, 0.76, 0.86);
      break;
    case Medium::music:
      filled.addEllipse(QPointF(0.3, 0.8), 0.22, 0.16);
      lines.moveTo(0.49, 0.8);
      lines.lineTo(0.49, 0.06);
      lines.quadTo(0.54, 0.3, 0.82, 0.4);
      break;
    case Medium::video:
      lines.addRect(0.02, 0.12, 0.96, 0.76);
      filled.addPolygon(QPolygonF({{0.36, 0.28}, {0.74, 0.5}, {0.36, 0.72}}));
      break;
  }
  return sign;
}

void PaintSign(const Sign& sign, QPainter& painter) {
  const auto [lines, filled] = PathsOf(sign.medium);
  painter.save();
  painter.translate(sign.place.topLeft());
  painter.scale(sign.place.width(), sign.place.height());
  painter.strokePath(lines, QPen(Qt::black, 0.08));
  painter.fillPath(filled, Qt::black);
  painter.restore();
}

void PaintText(const Text& text, QPainter& painter) {
  painter.setFont(Face(text.size, text.bold));
  const QPointF base(text.place.left(), text.place.top() + Ascent() * text.size);
  painter.drawText(base * pixels_per_point, text.text);
}

void PaintDrawing(const Drawing& drawing, QPainter& painter) {
  for (const Box& box : drawing.boxes) painter.fillRect(box.place, Shade(box.shade));
  for (const Stroke& stroke : drawing.strokes) {
    const Qt::PenCapStyle ends = stroke.shade > 0 ? Qt::FlatCap : Qt::SquareCap;
    painter.setPen(QPen(Shade(stroke.shade), stroke.width, Qt::SolidLine, ends));
    painter.drawLine(stroke.line);
  }
  for (const Sign& sign : drawing.signs) PaintSign(sign, painter);
  painter.save();
  painter.setPen(Qt::black);
  painter.scale(1 / pixels_per_point, 1 / pixels_per_point);
  for (const Text& text : drawing.texts) PaintText(text, painter);
  painter.restore();
}

}  // namespace

void PaintPage(const Page& page, const Paper& paper, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  PaintDrawing(page.upright, painter);
  painter.translate(paper.width, paper.height);
  painter.rotate(180);
  PaintDrawing(page.turned, painter);
  painter.restore();
}

}  // namespace kalvon::printing
