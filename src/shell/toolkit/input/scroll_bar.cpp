// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/scroll_bar.h"

#include <QScrollBar>
#include <algorithm>
#include <limits>

#include "files/run_time_error.h"
#include "shell/toolkit/controls/replace.h"

namespace toolkit {

namespace {

void Require16Bits(int value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max())
    throw files::RuntimeError(files::error::invalid_property_value);
}

}  // namespace

ScrollBar::ScrollBar(Container& parent, const ControlSheet& sheet, Orientation orientation)
    : Control(parent, sheet,
              std::make_unique<QScrollBar>(orientation == Orientation::vertical ? Qt::Vertical
                                                                                : Qt::Horizontal)) {
  auto* bar = static_cast<QScrollBar*>(widget());
  bar->setTracking(false);
  bar->setContextMenuPolicy(Qt::NoContextMenu);
  ApplyRange();
  QObject::connect(bar, &QScrollBar::valueChanged, bar, [this] { Change.Raise(); });
  // The keys stay with the letter boxes when the bar is used with the mouse.
  StopTabHere(FocusBy::tab_alone);
}

void ScrollBar::Min(int min) {
  Require16Bits(min);
  if (Replace(min_, min)) ApplyRange();
}

void ScrollBar::Max(int max) {
  Require16Bits(max);
  if (Replace(max_, max)) ApplyRange();
}

int ScrollBar::Value() const { return static_cast<QScrollBar*>(widget())->value(); }

void ScrollBar::Value(int value) {
  Require16Bits(value);
  static_cast<QScrollBar*>(widget())->setValue(value);
}

void ScrollBar::LargeChange(int step) { static_cast<QScrollBar*>(widget())->setPageStep(step); }

void ScrollBar::ApplyRange() {
  static_cast<QScrollBar*>(widget())->setRange(min_, std::max(min_, max_));
}

}  // namespace toolkit
