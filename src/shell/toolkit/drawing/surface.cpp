// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <cstdlib>
#include <utility>

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
  if (!painter_.isActive()) painter_.begin(&image_);
  if (painter_.compositionMode() != mode) painter_.setCompositionMode(mode);
  return painter_;
}

void Surface::Drawn(const QRect& drawn) {
  // On a dense display the edges of what is drawn may lie within a pixel of the screen.
  const QRect part = drawn.adjusted(-1, -1, 1, 1);
  // What is drawn without persistence goes to the screen at once, as the progress of a load must.
  if (persistent || !isVisible())
    update(part);
  else
    repaint(part);
}

void Surface::Clear(const QColor& colour) {
  background_ = colour;
  Painter(QPainter::CompositionMode_SourceOver).fillRect(rect(), colour);
  update();
}

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
  if (frame_) frame_->setGeometry(geometry().adjusted(-1, -1, 1, 1));
}

void Surface::Fit() {
  if (painter_.isActive()) painter_.end();
  const qreal ratio = devicePixelRatioF();
  const QSize wanted = size() * ratio;
  if (image_.size() == wanted && image_.devicePixelRatio() == ratio) return;
  QImage fitted(wanted, QImage::Format_RGB32);
  fitted.setDevicePixelRatio(ratio);
  fitted.fill(background_);
  if (!image_.isNull()) QPainter(&fitted).drawImage(0, 0, image_);
  image_ = fitted;
}

void Surface::paintEvent(QPaintEvent* event) {
  const qreal ratio = devicePixelRatioF();
  if (image_.devicePixelRatio() != ratio) Fit();
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
  pressed(ButtonNumber(event->button()), ShiftState(event->modifiers()), event->position());
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
