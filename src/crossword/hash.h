// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace kalvon {

inline constexpr std::uint64_t empty_hash = 0xcbf29ce484222325;

/// A hash of 64 bits, to which more bytes can be added (FNV-1a). It tells apart what differs by
/// chance, and not what somebody has made to look alike.
constexpr std::uint64_t Hash(std::string_view bytes, std::uint64_t before = empty_hash) {
  for (const char byte : bytes) {
    before ^= static_cast<unsigned char>(byte);
    before *= 0x100000001b3;
  }
  return before;
}

}  // namespace kalvon
