// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSlider>
#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace toolkit {

/// The widget of a picture: an image that keeps what is drawn; painting only copies it. The image
/// has as many pixels as the widget takes up on the screen, while all coordinates are those of the
/// design.
class Surface : public QWidget {
 public:
  Surface() { setAttribute(Qt::WA_OpaquePaintEvent); }

  /// What is drawn stays while the surface is hidden.
  bool persistent = true;
  /// A mouse button was pressed: its number, the Shift state, and the place.
  std::function<void(int, int, QPointF)> pressed;
  /// It was let go on the surface.
  std::function<void()> clicked;
  /// Makes what the host's accessibility asks.
  std::function<QAccessibleInterface*()> accessible;

  /// The painter of the image, which stays open between drawing calls: opening one for each letter
  /// of a grid would cost more than the letters.
  QPainter& Painter(QPainter::CompositionMode mode);
  /// Fills a box with whole pixels of the image: boxes side by side leave none out and share none,
  /// and a line has a pixel at least.
  void Fill(const QRect& box, QPainter::CompositionMode mode, const QColor& colour);
  /// Says that a part of the image has changed.
  void Drawn(const QRect& drawn);
  void Clear(const QColor& colour);
  [[nodiscard]] QRect Area() const;
  /// Whether a pixel of the design is not one of the image.
  [[nodiscard]] bool IsZoomed() const { return ratio_ != 1; }

  /// Gives the image the size of the widget and keeps what it shows, stretched by another zoom. A
  /// hidden widget is not told of a new size, so whoever gives one calls this. Returns whether the
  /// zoom is another.
  bool Fit();

  void AddFrame();
  void PlaceFrame();

  /// The bars that the wheel moves; either may be missing.
  QPointer<QAbstractSlider> bar_down;
  QPointer<QAbstractSlider> bar_across;

  void setVisible(bool visible) override;

  /// What is on the surface.
  const QImage& Shown();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QImage image_;
  qreal ratio_ = 1;  ///< Of its pixels to those of the design.
  QPainter painter_;
  QColor background_ = Qt::white;
  bool held_ = false;
  QPointer<QWidget> frame_;
};

}  // namespace toolkit
