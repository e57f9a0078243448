// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/toolkit/control.h"

namespace toolkit {

/// A push button. An "&" in the caption marks the Alt key letter and is not shown.
class Button : public Control {
 public:
  Button(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);

  /// Enter presses this button wherever the focus is in the form.
  void Default();

  Event<> Click;

 protected:
  void FontChanged() override;

 private:
  void ShowCaption();

  std::string caption_;
};

/// An option button. The buttons of one frame form a group, of which one is selected.
class OptionButton : public Control {
 public:
  OptionButton(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);

  /// Whether this button is the selected one; selecting it clears the others of its group.
  [[nodiscard]] bool Value() const;
  void Value(bool selected);

 protected:
  void FontChanged() override;

 private:
  void ShowCaption();

  std::string caption_;
};

}  // namespace toolkit
