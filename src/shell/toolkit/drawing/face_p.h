// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QStaticText>
#include <string>

#include "shell/toolkit/drawing/text_code_p.h"

namespace toolkit {

/// A font of the logic: an installed font, the code of its characters, and the texts that were
/// drawn in it lately, laid out once.
class Face {
 public:
  struct LaidOut {
    QStaticText text;
    int width = 0;  ///< Pixels.
    const QFont* font = nullptr;
    int drop = 0;  ///< Pixels from the top of the line to that of the letters.
    /// A short text as it was drawn last by a zoom, and which: the host keeps no large letters.
    mutable QImage drawn;
    mutable qreal drawn_zoom = 0;
  };

  /// The face of a font name, a size in points, and so on. It lives as long as the application.
  static Face& Of(const std::string& name, double points, bool bold, int charset);

  /// Forgets all faces: the application ends.
  static void ForgetAll();

  /// The font of a widget, by the present zoom. Pictures are drawn in that of the design, with a
  /// painter that zooms.
  [[nodiscard]] QFont ZoomedFont() const;
  [[nodiscard]] TextCode code() const { return code_; }
  [[nodiscard]] int LineHeight() const { return metrics_.height() + room_for_carons_; }
  [[nodiscard]] QString Shown(const std::string& text) const { return Decode(text, code_); }

  const LaidOut& LayOut(const std::string& text);
  /// Some letters reach so many pixels beyond the width that they take up.
  static constexpr int overhang = 2;
  /// Draws a text in black, with the top left corner of its line at a place.
  static void Print(QPainter& painter, QPoint at, const LaidOut& text);

  Face(const QFont& font, TextCode code);

 private:
  static void Keep(const LaidOut& text, qreal zoom);

  QFont font_;
  QFontMetrics metrics_;
  QFont lowered_font_;  ///< Of a single capital with an accent.
  TextCode code_;
  /// Pixels that the letters stand lower than the font says, so that the caron of a capital stays
  /// in its line.
  int room_for_carons_;
  QHash<QByteArray, LaidOut> laid_out_;
};

}  // namespace toolkit
