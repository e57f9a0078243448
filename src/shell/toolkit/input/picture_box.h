// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "shell/toolkit/controls/control.h"
#include "shell/toolkit/drawing/picture.h"
#include "shell/toolkit/input/spoken_picture.h"

namespace toolkit {

class ScrollBar;
class Surface;

/// A colour with red in the low byte: 0xBBGGRR.
using Colour = std::uint32_t;

enum class DrawMode { exclusive_or = 7, copy = 13 };

/// A surface to draw on, and a parent of controls. Coordinates are in its own scale and count from
/// its top left corner. Nothing is antialiased but letters, so drawing a shape twice with the
/// exclusive-or pen restores every pixel.
class PictureBox : public Control, public Container {
 public:
  PictureBox(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] const toolkit::Picture& Picture() const { return picture_; }
  /// Replaces the background image; an empty one clears the surface with all that was drawn on it.
  void Picture(const toolkit::Picture& picture);

  /// The control takes the size of its picture when one is assigned.
  void AutoSize(bool auto_size) { auto_size_ = auto_size; }
  /// Whether what is drawn stays when the form is hidden; so it does unless this is turned off.
  void Persistent(bool persistent);
  /// A one-pixel frame that lies around the drawing pixels, outside the control's place.
  void Framed();

  /// The mouse wheel over the picture moves this bar: an upright one, or with Shift or turned
  /// sideways a level one. Where only one of the two can move, the wheel always moves that.
  void WheelMoves(ScrollBar& bar);

  void ScaleMode(Scale scale) { scale_ = scale; }

  /// Clears the surface.
  void BackColor(Colour colour);

  /// Line and FilledBox obey it.
  void DrawMode(toolkit::DrawMode mode) { draw_mode_ = mode; }

  /// From the upper left to the lower right corner, both included.
  void FilledBox(int x1, int y1, int x2, int y2, Colour colour);
  /// A line of one pixel, level or upright, with both its ends. On a dense display it covers whole
  /// units as a box does, where a pen is off by half of one.
  void Line(int x1, int y1, int x2, int y2, Colour colour) { FilledBox(x1, y1, x2, y2, colour); }
  /// A black arc, counter-clockwise from `start` to `end`, both in radians from the positive x axis
  /// with up as positive.
  void Circle(int x, int y, int radius, float start, float end);

  void CurrentX(int x) { current_x_ = x; }
  void CurrentY(int y) { current_y_ = y; }
  /// Draws text with its top left corner at the current position, transparent behind the letters.
  void Print(const std::string& text);

  /// Copies a picture at its own size.
  void PaintPicture(const toolkit::Picture& picture, int x, int y);

  /// What assistive technology is told of the picture.
  [[nodiscard]] const SpokenPicture& Spoken() const { return spoken_; }
  void Spoken(SpokenPicture spoken) { spoken_ = std::move(spoken); }
  /// What it was told may have changed. Costs nothing while nobody listens.
  void TellSpoken();
  /// Runs a press that came by that way, if the user could click.
  void PressSpoken(const std::function<void()>& press);

  /// Button (1 left, 2 right, 4 middle), Shift state, and the position.
  Event<int, int, double, double> MouseDown;
  Event<> Click;

  [[nodiscard]] Scale InnerScale() const override { return scale_; }
  [[nodiscard]] QWidget* InnerWidget() const override { return widget(); }
  Window& OwningWindow() override { return parent().OwningWindow(); }

 protected:
  void PlaceChanged() override;

 private:
  [[nodiscard]] Surface& surface() const;
  [[nodiscard]] int Pixels(int units) const;

  SpokenPicture spoken_;
  toolkit::Picture picture_;
  Scale scale_ = Scale::pixels;
  Colour back_color_ = 0xFFFFFF;
  toolkit::DrawMode draw_mode_ = toolkit::DrawMode::copy;
  bool auto_size_ = false;
  int current_x_ = 0;
  int current_y_ = 0;
};

}  // namespace toolkit
