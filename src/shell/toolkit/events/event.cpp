// SPDX-License-Identifier: MIT
#include "shell/toolkit/events/event.h"

#include <exception>
#include <iostream>

#include "files/run_time_error.h"
#include "shell/toolkit/events/program_end.h"

namespace toolkit {

void RunHandler(const std::function<void()>& handler) {
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

}  // namespace toolkit
