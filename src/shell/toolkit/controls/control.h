// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "shell/toolkit/controls/container.h"
#include "shell/toolkit/events/event.h"

class QWidget;

namespace toolkit {

class Face;

/// How the user can give a control the focus.
enum class FocusBy { tab_and_click, tab_alone };

enum class Alignment { left, right, center };

/// Position and size in the scale of the parent.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// A row of a form's sheet: what a control is called, where it stands and what it says.
struct ControlSheet {
  std::string name;
  Place place;
  int tab_index = 0;
  std::string caption = {};
  int index = -1;  ///< Index in its control array, -1 outside an array.
};

/// What every control has. A control is the sole owner of its widget, whose object name is the
/// control's name with its index, as in "cmd_glavni(0)".
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control();

  [[nodiscard]] int Index() const { return index_; }

  // Position and size in the scale of the parent.
  [[nodiscard]] int Left() const { return place_.left; }
  void Left(int left);
  [[nodiscard]] int Top() const { return place_.top; }
  void Top(int top);
  [[nodiscard]] int Width() const { return place_.width; }
  void Width(int width);
  [[nodiscard]] int Height() const { return place_.height; }
  void Height(int height);

  /// Whether the control itself is to be seen; a hidden parent hides it all the same.
  [[nodiscard]] bool Visible() const { return visible_; }
  void Visible(bool visible);

  /// A disabled control gets no input and no focus.
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void Enabled(bool enabled);

  /// Puts the control in front of its siblings.
  void BringToFront();

  /// Gives the control the keyboard focus. Error 5 if it cannot take it: it or a parent is hidden
  /// or disabled, or its form is. GotFocus follows from the event loop.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  [[nodiscard]] const std::string& FontName() const { return font_name_; }
  void FontName(const std::string& name);
  /// Points.
  [[nodiscard]] double FontSize() const { return font_size_; }
  void FontSize(double points);
  void FontBold(bool bold);
  /// Character set of the font: 0 the font's own, 204 Windows-1251, 238 Windows-1250.
  [[nodiscard]] int Charset() const { return charset_; }
  void Charset(int charset);

  // For assistive technology, in the host's own encoding. A control with a caption says that.
  void SpokenName(const std::string& name);
  void SpokenDescription(const std::string& description);
  /// A text in the characters of the control, in the host's own encoding.
  [[nodiscard]] std::string Decoded(const std::string& text) const;

  /// Shows the control by the present zoom.
  void Rescale();

  Event<> GotFocus;

 protected:
  /// Takes over the widget, names it, and puts it in its place inside the parent.
  Control(Container& parent, const ControlSheet& sheet, std::unique_ptr<QWidget> widget);

  [[nodiscard]] QWidget* widget() const { return widget_.get(); }
  [[nodiscard]] Container& parent() const { return parent_; }
  /// The size changed without being set: AutoSize.
  void TakeSize(int width_in_pixels, int height_in_pixels);
  /// The font or the charset has changed: show the text anew.
  virtual void FontChanged();
  virtual void PlaceChanged();
  /// Lets the Tab key stop here, in the order of the form's tab indexes.
  void StopTabHere(FocusBy way = FocusBy::tab_and_click);
  [[nodiscard]] Face& FaceInUse() const;

 private:
  void PlaceWidget();
  void ApplyPlace();

  Container& parent_;
  std::unique_ptr<QWidget> widget_;
  int index_;
  int tab_index_;
  Place place_;
  bool visible_ = true;
  bool enabled_ = true;
  std::string font_name_ = "MS Sans Serif";
  double font_size_ = 8.25;
  bool font_bold_ = false;
  int charset_ = 0;
};

}  // namespace toolkit
