// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/container.h"

#include <QWidget>

#include "shell/toolkit/controls/control.h"

namespace toolkit {

bool Window::Visible() const { return InnerWidget()->isVisible(); }

void Window::RescaleControls() const {
  for (Control* control : controls_) control->Rescale();
}

void Window::ChainTabStops() const {
  QWidget* before = nullptr;
  for (const auto& [index, stop] : tab_stops_) {
    if (before != nullptr) QWidget::setTabOrder(before, stop);
    before = stop;
  }
}

}  // namespace toolkit
