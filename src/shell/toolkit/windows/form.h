// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/toolkit/controls/container.h"
#include "shell/toolkit/events/event.h"

class QKeyEvent;
class QWheelEvent;

namespace toolkit {

class FormWidget;
class Strip;

enum class Border {
  sizeable,     ///< The user can drag it; the form has a close box.
  fixed_dialog  ///< Of one size, with no close box; it stays above the start form.
};

/// A row of the form sheet for the form itself. The size is that of its inner area, in twips.
struct FormSheet {
  std::string name;
  std::string caption;
  Border border = Border::sizeable;
  Scale scale = Scale::twips;
  int inner_width = 0;
  int inner_height = 0;
};

/// A window. Outer sizes count a nominal window frame of the period, whatever the window manager
/// draws, so that they are the same on every desktop.
class Form : public Window {
 public:
  ~Form() override;

  // Outer position and size in twips of the design on the screen.
  [[nodiscard]] int Left() const { return left_; }
  void Left(int twips);
  [[nodiscard]] int Top() const { return top_; }
  void Top(int twips);
  [[nodiscard]] int Width() const;
  void Width(int twips);
  [[nodiscard]] int Height() const;
  void Height(int twips);

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);
  /// Shows the host's mark of unsaved work in the title.
  void Modified(bool modified);

  /// Shows the form, or brings it to the front. Returns at once.
  void Show();
  void Hide();

  /// The icon of the window, one of the pictures that are built in.
  void Icon(const std::string& picture_name);

  /// Makes all forms as large as this one is at a zoom, or as the screen has room for.
  void ZoomTo(double factor);
  /// As large as the screen, without a title; or as before.
  void FullScreen(bool full_screen);
  [[nodiscard]] bool FullScreen() const;
  /// The zooms that a window's size can lead to are multiples of one through this number: the
  /// pitch of what must come out even.
  void ZoomGrain(int grain) { zoom_grain_ = grain; }

  /// Where the host's window stands, in the host's own words; giving them back puts it there.
  [[nodiscard]] std::string HostPlace() const;
  void HostPlace(const std::string& place);

  /// Gives the window a strip below the form, which no size of the form counts.
  Strip& AddStrip();

  /// Raised by a combination of keys, "F5" or "Ctrl+S", wherever in the form the focus is. The
  /// control that has it does not see them, unless the handler clears the argument.
  Event<bool&>& Shortcut(const std::string& keys);

  Event<> Resize;
  /// The zoom is another: pictures that were drawn are to be drawn anew.
  Event<> Rescaled;
  /// The wheel was turned with Ctrl, away from the user or towards him.
  Event<bool> ZoomWheel;
  /// Files were dropped on the window, by their paths of the host in UTF-8; at least one.
  Event<const std::vector<std::string>&> FilesDropped;
  /// The keyboard comes to this window, or goes to another one, or to none.
  Event<> Activate;
  Event<> Deactivate;
  /// The user closes the form. Setting the argument keeps it open.
  Event<bool&> Unload;
  /// The desktop or a signal ends the program, also while the form is disabled.
  Event<> HostEnds;

  [[nodiscard]] Scale InnerScale() const override { return scale_; }
  [[nodiscard]] QWidget* InnerWidget() const override;

  /// Raises HostEnds of the start form.
  static void EndStartForm();

  /// Whether the window is no form, or a form that is enabled.
  static bool TakesInput(const QWidget* window);
  /// Raises the shortcut of the keys, if the window is a form that has one; whether it took them.
  static bool TakesKeys(const QWidget* window, const QKeyEvent& keys);
  /// Raises ZoomWheel if the window is a form and Ctrl is held; whether it is.
  static bool TakesWheel(const QWidget* window, const QWheelEvent& turn);

 protected:
  explicit Form(const FormSheet& sheet);

 private:
  friend class FormWidget;
  /// Pixels of the design, with the strip.
  [[nodiscard]] int WindowHeight() const;
  void TakeSize(int width, int height);
  [[nodiscard]] double ZoomThatFits(int width, int height) const;
  void TakeWindowSize();
  void FitToWindow();
  void LayOut();
  void Place();
  static void ShowAll(double factor);

  std::unique_ptr<FormWidget> widget_;
  std::unique_ptr<Strip> strip_;
  std::map<std::string, Event<bool&>> shortcuts_;
  std::string caption_;
  Border border_;
  Scale scale_;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;  ///< Of the inner area, in pixels of the design, as is the next.
  int height_ = 0;
  int zoom_grain_ = 1;
  int turned_ = 0;  ///< By the wheel, in eighths of a degree, less than a notch.
};

/// A form that is loaded, hidden, at its first touch and lives until it is unloaded.
template <typename Kind>
class FormHandle {
 public:
  Kind& operator*() {
    if (!form_) {
      form_ = std::make_unique<Kind>();
      Load.Raise(*form_);
    }
    return *form_;
  }
  Kind* operator->() { return &**this; }

  void Unload() { form_.reset(); }

  /// Raised once the form is made, before its first use.
  Event<Kind&> Load;

 private:
  std::unique_ptr<Kind> form_;
};

}  // namespace toolkit
