// SPDX-License-Identifier: MIT
#include "crossword/media_wave.h"

#include <array>
#include <cstdint>
#include <numeric>
#include <string_view>

#include "files/binary_file.h"

namespace kalvon {
namespace {

/// The number in some bytes, the lowest first.
std::int64_t NumberIn(std::string_view bytes) {
  return std::accumulate(bytes.rbegin(), bytes.rend(), std::int64_t{0},
                         [](std::int64_t number, char byte) {
                           return number * 256 + static_cast<unsigned char>(byte);
                         });
}

}  // namespace

void CutOffTail(const std::string& path) {
  constexpr std::int64_t file_head = 12;
  constexpr std::size_t chunk_head = 8;  // A name of four letters, and the length of what follows.
  constexpr int most_chunks = 1000;      // A file of empty ones would keep the program busy.
  const files::BinaryReader file(path);
  std::array<char, chunk_head> buffer{};
  std::int64_t end = file_head;
  for (int n = 0; n < most_chunks; ++n) {
    const std::string_view head = file.Get(end + end % 2 + 1, buffer);
    if (head.size() < chunk_head) return;
    end += end % 2 + static_cast<std::int64_t>(chunk_head) + NumberIn(head.substr(4));
    const std::size_t behind = file.Get(end + 1, buffer).size();
    if (behind > 0 && behind < chunk_head) return files::CutOff(path, end);
  }
}

}  // namespace kalvon
