// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/control.h"

namespace toolkit {

enum class Orientation { horizontal, vertical };

/// A scroll bar. It acts when its value has changed, after the thumb is let go.
class ScrollBar : public Control {
 public:
  ScrollBar(Container& parent, const ControlSheet& sheet,
            Orientation orientation = Orientation::vertical);

  // Whole numbers of 16 bits; a value outside Min to Max is held to that range. A Max below Min
  // leaves Min as the only value.
  void Min(int min);
  [[nodiscard]] int Max() const { return max_; }
  void Max(int max);
  [[nodiscard]] int Value() const;
  void Value(int value);

  void LargeChange(int step);

  Event<> Change;

 private:
  friend class PictureBox;
  void ApplyRange();

  int min_ = 0;
  int max_ = 32767;
};

}  // namespace toolkit
