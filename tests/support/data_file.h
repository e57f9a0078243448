// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kalvon::testing {

/// The bytes of a file in `tests/data`.
inline std::string DataFile(const std::string& name) {
  std::ifstream file(std::filesystem::path(DATA_FOLDER) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kalvon::testing
