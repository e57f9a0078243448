// SPDX-License-Identifier: MIT
#include "files/run_time_error.h"

#include <string>

namespace files {

RuntimeError::RuntimeError(int number)
    : std::runtime_error("run-time error " + std::to_string(number)), number_(number) {}

}  // namespace files
