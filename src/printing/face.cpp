// SPDX-License-Identifier: MIT
#include "printing/face.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

namespace kalvon::printing {
namespace {

constexpr double measured_size = 20;

QFontMetricsF Metrics(bool bold) { return QFontMetricsF(Face(measured_size, bold)); }

double AtOnePoint(double pixels) { return pixels / measured_size / pixels_per_point; }

}  // namespace

QFont Face(double size, bool bold) {
  QFont font;
  font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
  font.setStyleHint(QFont::SansSerif);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(std::max(qRound(size * pixels_per_point), 1));
  font.setBold(bold);
  return font;
}

double WidthOf(const QString& text, bool bold) {
  static const QFontMetricsF faces[] = {Metrics(false), Metrics(true)};
  return AtOnePoint(faces[bold ? 1 : 0].horizontalAdvance(text));
}

double Ascent() {
  static const double ascent = AtOnePoint(Metrics(false).ascent());
  return ascent;
}

double FaceHeight() {
  static const double height = AtOnePoint(Metrics(false).height());
  return height;
}

}  // namespace kalvon::printing
