// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace toolkit {

/// Whether assistive technology wants to be told of what happens.
bool SomebodyListens();

/// Sets what runs when it begins to listen, as a handler does.
void WhenSomebodyListens(std::function<void()> action);

}  // namespace toolkit
