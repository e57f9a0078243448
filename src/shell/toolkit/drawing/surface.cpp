// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/drawing/surface_p.h"
#include "shell/toolkit/events/key_codes_p.h"

namespace toolkit {

namespace {

int ButtonNumber(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    default:
      return 4;
  }
}

bool CanMove(const QAbstractSlider* bar) {
  return bar != nullptr && bar->isEnabled() && bar->maximum() > bar->minimum();
}

}  // namespace

QPainter& Surface::Painter(QPainter::CompositionMode mode) {
  if (!painter_.isActive()) {
    painter_.begin(&image_);
    painter_.scale(ratio_, ratio_);
  }
  if (painter_.compositionMode() != mode) painter_.setCompositionMode(mode);
  return painter_;
}

void Surface::Fill(const QRect& box, QPainter::CompositionMode mode, const QColor& colour) {
  const auto edge = [this](int place) { return qRound(place * ratio_); };
  const QPoint first(edge(box.x()), edge(box.y()));
  const QSize size(edge(box.x() + box.width()) - first.x(),
                   edge(box.y() + box.height()) - first.y());
  QPainter& painter = Painter(mode);
  const QTransform zoomed = painter.worldTransform();
  painter.resetTransform();
  painter.fillRect(QRect(first, size.expandedTo(QSize(1, 1))), colour);
  painter.setWorldTransform(zoomed);
  Drawn(box);
}

void Surface::Drawn(const QRect& drawn) {
  // The edges of what is drawn may lie within a pixel of the screen.
  const QRect part = QRectF(QPointF(drawn.topLeft()) * Zoom(), QSizeF(drawn.size()) * Zoom())
                         .toAlignedRect()
                         .adjusted(-1, -1, 1, 1);
  // What is drawn without persistence goes to the screen at once, as the progress of a load must.
  if (persistent || !isVisible())
    update(part);
  else
    repaint(part);
}

void Surface::Clear(const QColor& colour) {
  background_ = colour;
  Painter(QPainter::CompositionMode_SourceOver).fillRect(Area(), colour);
  update();
}

QRect Surface::Area() const { return {QPoint(), (QSizeF(size()) / Zoom()).toSize()}; }

const QImage& Surface::Shown() {
  if (painter_.isActive()) painter_.end();
  return image_;
}

void Surface::AddFrame() {
  frame_ = new QWidget(parentWidget());
  frame_->setAutoFillBackground(true);
  frame_->setPalette(QPalette(Qt::black));
  frame_->setAttribute(Qt::WA_TransparentForMouseEvents);
  frame_->lower();
  frame_->setVisible(!isHidden());
  PlaceFrame();
}

void Surface::PlaceFrame() {
  const int line = std::max(1, Zoomed(1));
  if (frame_) frame_->setGeometry(geometry().adjusted(-line, -line, line, line));
}

bool Surface::Fit() {
  if (painter_.isActive()) painter_.end();
  const QSize wanted = size() * devicePixelRatioF();
  const qreal ratio = devicePixelRatioF() * Zoom();
  if (image_.size() == wanted && ratio_ == ratio) return false;
  const qreal stretch = ratio / std::exchange(ratio_, ratio);
  const QImage before = std::exchange(image_, QImage(wanted, QImage::Format_RGB32));
  image_.fill(background_);
  if (!before.isNull()) {
    QPainter painter(&image_);
    painter.scale(stretch, stretch);
    painter.drawImage(0, 0, before);
  }
  return stretch != 1 && !before.isNull();
}

void Surface::paintEvent(QPaintEvent* event) {
  const qreal ratio = devicePixelRatioF();
  if (ratio_ != ratio * Zoom()) Fit();
  if (painter_.isActive()) painter_.end();
  const QRectF part = event->rect();
  QPainter(this).drawImage(part, image_, QRectF(part.topLeft() * ratio, part.size() * ratio));
}

void Surface::setVisible(bool visible) {
  QWidget::setVisible(visible);
  if (frame_) frame_->setVisible(visible);
}

void Surface::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!persistent) Clear(background_);
}

void Surface::mousePressEvent(QMouseEvent* event) {
  held_ = true;
  pressed(ButtonNumber(event->button()), ShiftState(event->modifiers()),
          event->position() / Zoom());
}

void Surface::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void Surface::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  const bool sideways = std::abs(turn.x()) > std::abs(turn.y());
  const int steps = sideways ? turn.x() : turn.y();
  const bool across = sideways || event->modifiers().testFlag(Qt::ShiftModifier);
  QAbstractSlider* bar = across ? bar_across : bar_down;
  if (!CanMove(bar)) bar = across ? bar_down : bar_across;
  if (!CanMove(bar)) return;
  // With Shift the bar would take a whole page.
  QWheelEvent turned(event->position(), event->globalPosition(), {}, {0, steps}, event->buttons(),
                     event->modifiers() & ~Qt::ShiftModifier, event->phase(), event->inverted());
  QApplication::sendEvent(bar, &turned);
}

void Surface::mouseReleaseEvent(QMouseEvent* event) {
  const bool held = std::exchange(held_, false);
  if (held && rect().contains(event->position().toPoint())) clicked();
}

}  // namespace toolkit
