// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

#include "shell/toolkit/events/event.h"

class QTimer;

namespace toolkit {

/// Comes once each time that it is started, from the event loop.
class Timer {
 public:
  Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  /// Raises Elapsed after this time, and not when it was to come before.
  void Start(std::chrono::milliseconds time);
  void Stop();

  Event<> Elapsed;

 private:
  std::unique_ptr<QTimer> timer_;
};

}  // namespace toolkit
