// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QByteArray>
#include <QEvent>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/windows/form_widget_p.h"
#include "shell/toolkit/windows/strip.h"

namespace toolkit {

namespace {

constexpr double smallest_zoom = 0.5;
constexpr double largest_zoom = 8;

/// The host lays parts of its widgets out anew.
void TellWidgets(QWidget& window) {
  QEvent restyled(QEvent::StyleChange);
  for (QWidget* widget : window.findChildren<QWidget*>())
    QApplication::sendEvent(widget, &restyled);
}

}  // namespace

int Form::WindowHeight() const { return height_ + (strip_ ? Strip::height : 0); }

/// The largest zoom at which the form goes into a window, or so much of a screen.
double Form::ZoomThatFits(int width, int height) const {
  const double fits =
      std::min(static_cast<double>(width) / width_, static_cast<double>(height) / WindowHeight());
  constexpr double rounding = 1e-9;
  const double even = std::floor(fits * zoom_grain_ + rounding) / zoom_grain_;
  return std::clamp(even, smallest_zoom, largest_zoom);
}

/// Gives the window the size that the form has by the zoom.
void Form::TakeWindowSize() {
  const QSize size(Zoomed(width_), Zoomed(WindowHeight()));
  if (border_ == Border::fixed_dialog) {
    widget_->setFixedSize(size);
  } else {
    widget_->setMinimumSize(static_cast<int>(width_ * smallest_zoom),
                            static_cast<int>(WindowHeight() * smallest_zoom));
    if (!widget_->isMaximized() && !widget_->isFullScreen()) widget_->resize(size);
  }
  LayOut();
}

/// The window has got a size: from here, or from the user or the window manager, which zoom so.
void Form::FitToWindow() {
  const QSize size = widget_->size();
  if (border_ == Border::sizeable && size != QSize(Zoomed(width_), Zoomed(WindowHeight())))
    ShowAll(ZoomThatFits(size.width(), size.height()));
  LayOut();
}

/// The form stands in the middle of its window, above the strip.
void Form::LayOut() {
  const int strip = Zoomed(WindowHeight()) - Zoomed(height_);
  const QSize area(Zoomed(width_), Zoomed(height_));
  const QSize room(widget_->width(), widget_->height() - strip);
  widget_->area.setGeometry(std::max(0, (room.width() - area.width()) / 2),
                            std::max(0, (room.height() - area.height()) / 2), area.width(),
                            area.height());
  if (strip_) strip_->Place(strip);
}

/// Shows all forms by a zoom.
void Form::ShowAll(double factor) {
  if (factor == Zoom()) return;
  Zoom(factor);
  for (Form* form : AllForms()) {
    if (form->border_ == Border::fixed_dialog) form->TakeWindowSize();
    form->LayOut();
    form->RescaleControls();
    TellWidgets(*form->widget_);
  }
  for (Form* form : AllForms()) form->Rescaled.Raise();
}

void Form::ZoomTo(double factor) {
  widget_->setWindowState(widget_->windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
  const QSize frame = widget_->frameGeometry().size() - widget_->size();
  const QSize room = widget_->screen()->availableSize() - frame;
  ShowAll(std::min(factor, ZoomThatFits(room.width(), room.height())));
  TakeWindowSize();
}

void Form::FullScreen(bool full_screen) {
  const Qt::WindowStates states = widget_->windowState() & ~Qt::WindowFullScreen;
  widget_->setWindowState(full_screen ? states | Qt::WindowFullScreen : states);
}

bool Form::FullScreen() const { return widget_->isFullScreen(); }

std::string Form::HostPlace() const { return widget_->saveGeometry().toBase64().toStdString(); }

void Form::HostPlace(const std::string& place) {
  widget_->restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(place)));
}

}  // namespace toolkit
