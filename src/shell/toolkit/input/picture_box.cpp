// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/picture_box.h"

#include <QPainter>
#include <numbers>

#include "shell/toolkit/drawing/face_p.h"
#include "shell/toolkit/drawing/surface_p.h"
#include "shell/toolkit/input/accessible_picture_p.h"
#include "shell/toolkit/input/scroll_bar.h"

namespace toolkit {

namespace {

QColor HostColour(Colour colour) {
  return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
          static_cast<int>((colour >> 16U) & 0xFFU)};
}

QPainter::CompositionMode HostMode(DrawMode mode) {
  return mode == DrawMode::exclusive_or ? QPainter::RasterOp_SourceXorDestination
                                        : QPainter::CompositionMode_SourceOver;
}

}  // namespace

PictureBox::PictureBox(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<Surface>()) {
  surface().pressed = [this](int button, int shift, QPointF place) {
    const double units = scale_ == Scale::pixels ? 1 : twips_per_pixel;
    MouseDown.Raise(button, shift, place.x() * units, place.y() * units);
  };
  surface().clicked = [this] { Click.Raise(); };
  surface().accessible = [this] { return new AccessiblePicture(*this); };
  QAccessible::installFactory(AccessiblePicture::Of);
  surface().Fit();
  surface().Clear(HostColour(back_color_));
}

Surface& PictureBox::surface() const { return *static_cast<Surface*>(widget()); }

int PictureBox::Pixels(int units) const {
  return scale_ == Scale::pixels ? units : units / twips_per_pixel;
}

void PictureBox::Picture(const toolkit::Picture& picture) {
  picture_ = picture;
  if (auto_size_ && !picture.Empty()) TakeSize(picture.image().width(), picture.image().height());
  surface().Clear(HostColour(back_color_));
  if (!picture.Empty()) PaintPicture(picture, 0, 0);
}

void PictureBox::Persistent(bool persistent) { surface().persistent = persistent; }

void PictureBox::Framed() { surface().AddFrame(); }

void PictureBox::WheelMoves(ScrollBar& bar) {
  auto* const slider = static_cast<QAbstractSlider*>(bar.widget());
  (slider->orientation() == Qt::Vertical ? surface().bar_down : surface().bar_across) = slider;
}

void PictureBox::BackColor(Colour colour) {
  back_color_ = colour;
  surface().Clear(HostColour(colour));
}

void PictureBox::FilledBox(int x1, int y1, int x2, int y2, Colour colour) {
  const QRect box(QPoint(Pixels(x1), Pixels(y1)), QPoint(Pixels(x2), Pixels(y2)));
  surface().Fill(box, HostMode(draw_mode_), HostColour(colour));
}

void PictureBox::Circle(int x, int y, int radius, float start, float end) {
  constexpr double sixteenths_of_a_degree = 16 * 180 / std::numbers::pi;
  constexpr int whole_circle = 360 * 16;
  const int from = qRound(static_cast<double>(start) * sixteenths_of_a_degree);
  const int to = qRound(static_cast<double>(end) * sixteenths_of_a_degree);
  const int r = Pixels(radius);
  const QRect around(Pixels(x) - r, Pixels(y) - r, 2 * r, 2 * r);
  QPainter& painter = surface().Painter(QPainter::CompositionMode_SourceOver);
  painter.setPen(Qt::black);
  painter.drawArc(around, from, ((to - from) % whole_circle + whole_circle) % whole_circle);
  surface().Drawn(around.adjusted(0, 0, 1, 1));
}

void PictureBox::Print(const std::string& text) {
  Face& face = FaceInUse();
  const Face::LaidOut& laid_out = face.LayOut(text);
  const QPoint at(Pixels(current_x_), Pixels(current_y_));
  QPainter& painter = surface().Painter(QPainter::CompositionMode_SourceOver);
  painter.setPen(Qt::black);
  Face::Print(painter, at, laid_out);
  surface().Drawn(QRect(at, QSize(laid_out.width, face.LineHeight()))
                      .adjusted(-Face::overhang, 0, Face::overhang, 0));
}

void PictureBox::PaintPicture(const toolkit::Picture& picture, int x, int y) {
  const QPoint at(Pixels(x), Pixels(y));
  QPainter& painter = surface().Painter(QPainter::CompositionMode_SourceOver);
  const QRect place(at, picture.image().size());
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.drawImage(place, surface().IsZoomed() ? picture.dense() : picture.image());
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  surface().Drawn(place);
}

void PictureBox::TellSpoken() {
  if (!QAccessible::isActive()) return;
  QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget());
  if (auto* const picture = dynamic_cast<AccessiblePicture*>(told)) picture->TellChanges();
}

void PictureBox::PressSpoken(const std::function<void()>& press) {
  if (press && Enabled() && OwningWindow().Enabled() && widget()->isVisible()) RunHandler(press);
}

void PictureBox::PlaceChanged() {
  if (surface().Fit() && !picture_.Empty()) PaintPicture(picture_, 0, 0);
  surface().PlaceFrame();
}

}  // namespace toolkit
