// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/control.h"

#include <QEvent>
#include <QWidget>
#include <cmath>
#include <utility>

#include "files/run_time_error.h"
#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/drawing/face_p.h"

namespace toolkit {

namespace {

/// Raises GotFocus from the event loop, once the widget has the focus.
class FocusWatch : public QObject {
 public:
  FocusWatch(QWidget* widget, const Event<>& got_focus)
      : QObject(widget), widget_(widget), got_focus_(got_focus) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn && got_focus_.Handled())
      QMetaObject::invokeMethod(
          widget_, [this] { got_focus_.Raise(); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
  }

 private:
  QWidget* widget_;
  const Event<>& got_focus_;
};

/// Pixels of the design.
int Pixels(int units, Scale scale) {
  return scale == Scale::pixels
             ? units
             : static_cast<int>(std::floor(static_cast<double>(units) / twips_per_pixel + 0.5));
}

int Units(int pixels, Scale scale) {
  return scale == Scale::pixels ? pixels : pixels * twips_per_pixel;
}

}  // namespace

Control::Control(Container& parent, const ControlSheet& sheet, std::unique_ptr<QWidget> widget)
    : parent_(parent),
      widget_(std::move(widget)),
      index_(sheet.index),
      tab_index_(sheet.tab_index),
      place_(sheet.place) {
  const std::string name =
      index_ < 0 ? sheet.name : sheet.name + "(" + std::to_string(index_) + ")";
  widget_->setObjectName(QString::fromStdString(name));
  widget_->setParent(parent.InnerWidget());
  widget_->setFocusPolicy(Qt::NoFocus);
  widget_->installEventFilter(new FocusWatch(widget_.get(), GotFocus));
  parent.OwningWindow().AddControl(*this);
  PlaceWidget();
  Control::FontChanged();
}

Control::~Control() = default;

void Control::Left(int left) {
  if (Replace(place_.left, left)) ApplyPlace();
}

void Control::Top(int top) {
  if (Replace(place_.top, top)) ApplyPlace();
}

void Control::Width(int width) {
  if (Replace(place_.width, width)) ApplyPlace();
}

void Control::Height(int height) {
  if (Replace(place_.height, height)) ApplyPlace();
}

void Control::PlaceWidget() {
  const Scale scale = parent_.InnerScale();
  const QPoint top_left(Zoomed(Pixels(place_.left, scale)), Zoomed(Pixels(place_.top, scale)));
  const QPoint bottom_right(Zoomed(Pixels(place_.left + place_.width, scale)),
                            Zoomed(Pixels(place_.top + place_.height, scale)));
  widget_->setGeometry(QRect(top_left, bottom_right - QPoint(1, 1)));
}

void Control::ApplyPlace() {
  PlaceWidget();
  PlaceChanged();
}

void Control::TakeSize(int width_in_pixels, int height_in_pixels) {
  const Scale scale = parent_.InnerScale();
  place_.width = Units(width_in_pixels, scale);
  place_.height = Units(height_in_pixels, scale);
  ApplyPlace();
}

void Control::Visible(bool visible) {
  if (Replace(visible_, visible)) widget_->setVisible(visible);
}

void Control::Enabled(bool enabled) {
  if (Replace(enabled_, enabled)) widget_->setEnabled(enabled);
}

void Control::BringToFront() { widget_->raise(); }

void Control::SetFocus() {
  if (!widget_->isVisible() || !widget_->isEnabled() || !parent_.OwningWindow().Enabled())
    throw files::RuntimeError(files::error::invalid_call);
  widget_->setFocus();
}

bool Control::HasFocus() const { return widget_->hasFocus(); }

void Control::FontName(const std::string& name) {
  if (Replace(font_name_, name)) FontChanged();
}

void Control::FontSize(double points) {
  if (Replace(font_size_, points)) FontChanged();
}

void Control::FontBold(bool bold) {
  if (Replace(font_bold_, bold)) FontChanged();
}

void Control::Charset(int charset) {
  if (Replace(charset_, charset)) FontChanged();
}

Face& Control::FaceInUse() const { return Face::Of(font_name_, font_size_, font_bold_, charset_); }

void Control::SpokenName(const std::string& name) {
  const QString shown = QString::fromStdString(name);
  if (widget_->accessibleName() != shown) widget_->setAccessibleName(shown);
}

void Control::SpokenDescription(const std::string& description) {
  const QString shown = QString::fromStdString(description);
  if (widget_->accessibleDescription() != shown) widget_->setAccessibleDescription(shown);
}

std::string Control::Decoded(const std::string& text) const {
  return FaceInUse().Shown(text).toStdString();
}

void Control::Rescale() {
  Control::FontChanged();
  ApplyPlace();
}

void Control::FontChanged() { widget_->setFont(FaceInUse().ZoomedFont()); }

void Control::PlaceChanged() {}

void Control::StopTabHere(FocusBy way) {
  widget_->setFocusPolicy(way == FocusBy::tab_and_click ? Qt::StrongFocus : Qt::TabFocus);
  parent_.OwningWindow().AddTabStop(tab_index_, widget_.get());
}

}  // namespace toolkit
