// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

/// Gives a property its value; whether it had another one. A property that is set to the value that
/// it has does nothing more, so that the logic may set it as often as it likes.
template <typename Value>
bool Replace(Value& property, const Value& value) {
  if (property == value) return false;
  property = value;
  return true;
}

}  // namespace toolkit
