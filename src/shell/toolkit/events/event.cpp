// SPDX-License-Identifier: MIT
#include "shell/toolkit/events/event.h"

#include <QScopedValueRollback>
#include <exception>
#include <iostream>
#include <utility>

#include "files/run_time_error.h"
#include "shell/toolkit/events/program_end.h"

namespace toolkit {

namespace {

int handlers_running = 0;

std::function<void()>& ActionAfterEvents() {
  static std::function<void()> action;
  return action;
}

void RunQuietly(const std::function<void()>& handler) {
  if (Ended()) return;
  try {
    handler();
  } catch (const files::RuntimeError&) {
    return;  // A procedure without handling of its own ends quietly.
  } catch (const ProgramEnd&) {
    return;  // The event loop stops by itself.
  } catch (const std::exception& failure) {
    std::cerr << "kalvon: an event failed: " << failure.what() << '\n';
  }
}

}  // namespace

void RunHandler(const std::function<void()>& handler) {
  const QScopedValueRollback running(handlers_running, handlers_running + 1);
  RunQuietly(handler);
  if (handlers_running > 1 || !ActionAfterEvents()) return;
  const auto action = ActionAfterEvents();
  RunQuietly(action);
}

void AfterEvents(std::function<void()> action) { ActionAfterEvents() = std::move(action); }

}  // namespace toolkit
