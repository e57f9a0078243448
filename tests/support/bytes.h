// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <string>

namespace kalvon::testing {

/// The lowest bytes of a number, the lowest first.
template <std::integral Integer>
std::string Number(Integer value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    text += static_cast<char>(value & 0xFF);
    value = static_cast<Integer>(value >> 8);
  }
  return text;
}

template <std::integral Integer>
std::string Low2(Integer value) {
  return Number(value, 2);
}

template <std::integral Integer>
std::string Low4(Integer value) {
  return Number(value, 4);
}

}  // namespace kalvon::testing
