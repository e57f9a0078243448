// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/listeners.h"

#include <QAccessible>
#include <utility>

#include "shell/toolkit/events/event.h"

namespace toolkit {

namespace {

class Watch : public QAccessible::ActivationObserver {
 public:
  Watch() { QAccessible::installActivationObserver(this); }
  ~Watch() override { QAccessible::removeActivationObserver(this); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  void accessibilityActiveChanged(bool active) override {
    if (active && action) RunHandler(action);
  }

  std::function<void()> action;
};

}  // namespace

bool SomebodyListens() { return QAccessible::isActive(); }

void WhenSomebodyListens(std::function<void()> action) {
  static Watch watch;
  watch.action = std::move(action);
}

}  // namespace toolkit
