// SPDX-License-Identifier: MIT
#include "shell/toolkit/run_time_error.h"

#include <string>

namespace toolkit {

RuntimeError::RuntimeError(int number)
    : std::runtime_error("run-time error " + std::to_string(number)), number_(number) {}

}  // namespace toolkit
