// SPDX-License-Identifier: MIT
#include "shell/toolkit/events/timer.h"

#include <QTimer>

namespace toolkit {

Timer::Timer() : timer_(std::make_unique<QTimer>()) {
  timer_->setSingleShot(true);
  // The other kinds may come too early.
  timer_->setTimerType(Qt::PreciseTimer);
  QObject::connect(timer_.get(), &QTimer::timeout, timer_.get(), [this] { Elapsed.Raise(); });
}

Timer::~Timer() = default;

void Timer::Start(std::chrono::milliseconds time) { timer_->start(time); }

void Timer::Stop() { timer_->stop(); }

}  // namespace toolkit
