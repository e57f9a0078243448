// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/captioned_control.h"

namespace toolkit {

/// A push button. An "&" in the caption marks the Alt key letter and is not shown.
class Button : public CaptionedControl {
 public:
  Button(Container& parent, const ControlSheet& sheet);

  /// Enter presses this button wherever the focus is in the form.
  void Default();

  Event<> Click;

 protected:
  void ShowCaption() override;
};

/// An option button. The buttons of one frame form a group, of which one is selected.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(Container& parent, const ControlSheet& sheet);

  /// Whether this button is the selected one; selecting it clears the others of its group.
  [[nodiscard]] bool Value() const;
  void Value(bool selected);

 protected:
  void ShowCaption() override;
};

}  // namespace toolkit
