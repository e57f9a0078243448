// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <vector>

#include "shell/toolkit/drawing/scale.h"

class QWidget;

namespace toolkit {

class Control;
class Window;

/// Anything that controls can stand in: a form, a frame, a picture.
class Container {
 public:
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  virtual ~Container() = default;

  /// The scale of the coordinates of the controls inside.
  [[nodiscard]] virtual Scale InnerScale() const = 0;
  [[nodiscard]] virtual QWidget* InnerWidget() const = 0;
  virtual Window& OwningWindow() = 0;

 protected:
  Container() = default;
};

/// What the controls of a form know of it.
class Window : public Container {
 public:
  /// A disabled form takes no mouse, key or close-box input and looks as before.
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void Enabled(bool enabled) { enabled_ = enabled; }
  [[nodiscard]] bool Visible() const;

  Window& OwningWindow() override { return *this; }

  /// A control stands in the form, or in something inside it.
  void AddControl(Control& control) { controls_.push_back(&control); }
  /// Lets the Tab key stop at a widget of the form, in the order of the tab indexes.
  void AddTabStop(int tab_index, QWidget* widget) { tab_stops_.emplace(tab_index, widget); }

 protected:
  void ChainTabStops() const;
  /// Shows all controls by the present zoom.
  void RescaleControls() const;

 private:
  std::vector<Control*> controls_;  ///< Each behind what it stands in.
  std::multimap<int, QWidget*> tab_stops_;
  bool enabled_ = true;
};

}  // namespace toolkit
