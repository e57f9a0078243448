// SPDX-License-Identifier: MIT
#include <QPointer>
#include <QWidget>
#include <algorithm>
#include <vector>

#include "shell/toolkit/media/window_handles_p.h"

namespace toolkit {

namespace {

/// Every widget that has a handle; the handle is its place, counted from 1.
std::vector<QPointer<QWidget>>& NamedWidgets() {
  static std::vector<QPointer<QWidget>> widgets;
  return widgets;
}

}  // namespace

int HandleOf(QWidget* widget) {
  if (widget == nullptr) return 0;
  auto& widgets = NamedWidgets();
  auto place = std::find(widgets.begin(), widgets.end(), widget);
  // The place of a widget that is gone is free again.
  if (place == widgets.end()) place = std::find(widgets.begin(), widgets.end(), nullptr);
  if (place == widgets.end()) place = widgets.emplace(place);
  *place = widget;
  return static_cast<int>(place - widgets.begin()) + 1;
}

QWidget* WidgetOf(int handle) {
  const auto& widgets = NamedWidgets();
  const auto place = static_cast<std::size_t>(handle) - 1;
  return place < widgets.size() ? widgets[place].data() : nullptr;
}

}  // namespace toolkit
