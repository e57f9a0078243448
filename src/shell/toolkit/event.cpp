// SPDX-License-Identifier: MIT
#include "shell/toolkit/event.h"

#include <exception>
#include <iostream>

#include "shell/toolkit/application.h"
#include "shell/toolkit/run_time_error.h"

namespace toolkit {

void RunHandler(const std::function<void()>& handler) {
  if (Ended()) return;
  try {
    handler();
  } catch (const RuntimeError&) {
    return;  // A procedure without handling of its own ends quietly.
  } catch (const ProgramEnd&) {
    return;  // The event loop stops by itself.
  } catch (const std::exception& failure) {
    std::cerr << "kalvon: an event failed: " << failure.what() << '\n';
  }
}

}  // namespace toolkit
