// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/face_p.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <tuple>

#include "shell/toolkit/drawing/scale.h"

namespace toolkit {

namespace {

constexpr qsizetype texts_kept = 4096;

/// Pixels of a size in points. The design takes 96 dots to the inch, on every screen. The letters
/// of the national fonts fill less of their size than those of a standard one: the forms leave room
/// for that, and 14 points of them stand beside 12 of the other.
int PixelSize(double points, TextCode code) {
  const bool national = code == TextCode::national_latin || code == TextCode::national_cyrillic;
  return static_cast<int>(std::lround(points * 96 / 72 * (national ? 0.92 : 1)));
}

/// The installed font that stands for a font of the logic; the first is the one to have, the others
/// are taken where it is missing.
QStringList InstalledFonts(TextCode code) {
  if (code == TextCode::signs)
    return {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans Symbols2")};
  return {QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
          QStringLiteral("DejaVu Sans")};
}

/// The font of a capital that stands by itself and has an accent above. In a ring of the grid there
/// is no more height than that of a plain capital, so it is lower, and as wide as the plain one.
QFont Lowered(const QFont& font) {
  const auto height = [](const QFont& of, char16_t letter) {
    return QFontMetrics(of).tightBoundingRect(QChar(letter)).height();
  };
  const int room = height(font, u'Z') + 1;
  QFont lowered = font;
  while (lowered.pixelSize() > 1 && height(lowered, u'\u017D') > room)
    lowered.setPixelSize(lowered.pixelSize() - 1);
  // A little narrower than the plain one: its strokes get wider too.
  lowered.setStretch(95 * font.pixelSize() / lowered.pixelSize());
  return lowered;
}

bool IsAccentedCapital(const QString& text) {
  return text.size() == 1 && text.front().isUpper() &&
         text.front().decompositionTag() == QChar::Canonical;
}

using FaceKey = std::tuple<std::string, double, bool, int>;

std::map<FaceKey, std::unique_ptr<Face>>& Faces() {
  static std::map<FaceKey, std::unique_ptr<Face>> faces;
  return faces;
}

}  // namespace

Face::Face(const QFont& font, TextCode code)
    : font_(font), metrics_(font), lowered_font_(Lowered(font)), code_(code) {
  const int caron_top = -metrics_.tightBoundingRect(QStringLiteral("\u017D")).top();
  room_for_carons_ = std::max(0, caron_top - metrics_.ascent());
}

Face& Face::Of(const std::string& name, double points, bool bold, int charset) {
  auto& face = Faces()[{name, points, bold, charset}];
  if (!face) {
    const TextCode code = TextCodeOf(name, charset);
    QFont font(InstalledFonts(code));
    font.setPixelSize(PixelSize(points, code));
    font.setBold(bold);
    // Kerning by whole pixels would take the blank beside an A, a T or a V.
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferFullHinting);
    face = std::make_unique<Face>(font, code);
  }
  return *face;
}

QFont Face::ZoomedFont() const {
  QFont zoomed = font_;
  // Rounded down, so that no text takes more room than it has.
  zoomed.setPixelSize(std::max(1, static_cast<int>(font_.pixelSize() * Zoom())));
  return zoomed;
}

void Face::ForgetAll() { Faces().clear(); }

/// Draws a text for the next times, in black.
void Face::Keep(const LaidOut& text, qreal zoom) {
  const QSizeF room(text.width + 2 * overhang, 2 * text.drop + QFontMetrics(*text.font).height());
  text.drawn_zoom = zoom;
  text.drawn = QImage((room * zoom).toSize(), QImage::Format_ARGB32_Premultiplied);
  text.drawn.fill(Qt::transparent);
  QPainter painter(&text.drawn);
  painter.scale(zoom, zoom);
  painter.setFont(*text.font);
  painter.drawStaticText(overhang, text.drop, text.text);
}

const Face::LaidOut& Face::LayOut(const std::string& text) {
  const auto key = QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
  const auto found = laid_out_.constFind(key);
  if (found != laid_out_.cend()) return *found;
  if (laid_out_.size() >= texts_kept) laid_out_.clear();

  const QString shown = Shown(text);
  LaidOut laid_out;
  laid_out.text.setTextFormat(Qt::PlainText);
  laid_out.text.setText(shown);
  laid_out.text.setPerformanceHint(QStaticText::AggressiveCaching);
  laid_out.font = IsAccentedCapital(shown) ? &lowered_font_ : &font_;
  laid_out.text.prepare(QTransform(), *laid_out.font);
  const QFontMetrics metrics(*laid_out.font);
  laid_out.width = metrics.horizontalAdvance(shown);
  // All letters stand on one line, whatever their font.
  laid_out.drop = room_for_carons_ + metrics_.ascent() - metrics.ascent();
  return *laid_out_.insert(QByteArray(text.data(), static_cast<qsizetype>(text.size())), laid_out);
}

void Face::Print(QPainter& painter, QPoint at, const LaidOut& text) {
  const qreal zoom = painter.worldTransform().m11();
  constexpr qsizetype longest_kept = 3;
  if (zoom == 1 || text.text.text().size() > longest_kept) {
    painter.setFont(*text.font);
    painter.drawStaticText(at + QPoint(0, text.drop), text.text);
    return;
  }
  if (text.drawn_zoom != zoom) Keep(text, zoom);
  const QTransform zoomed = painter.worldTransform();
  painter.resetTransform();
  painter.drawImage(zoomed.map(at - QPoint(overhang, 0)), text.drawn);
  painter.setWorldTransform(zoomed);
}

}  // namespace toolkit
