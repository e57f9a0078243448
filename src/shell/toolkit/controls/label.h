// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/captioned_control.h"

namespace toolkit {

/// A text that the user cannot change. A CR breaks the line; a longer text wraps and is cut at the
/// label's height.
class Label : public CaptionedControl {
 public:
  Label(Container& parent, const ControlSheet& sheet);

  /// The label takes the size of its caption, at once.
  void AutoSize(bool auto_size);

  void Align(Alignment alignment);
  /// Draws the caption so many pixels higher, where a control below would hide its descenders.
  void Lift(int pixels);
  /// White, with a single border, as a small window of its own.
  void Boxed();

 protected:
  void ShowCaption() override;
  void PlaceChanged() override;

 private:
  int lift_ = 0;
  bool auto_size_ = false;
};

}  // namespace toolkit
