// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "files/host_paths.h"

/// The bytes of a file in `tests/data`.
inline std::string DataFile(const std::string& name) {
  std::ifstream file(std::filesystem::path(DATA_FOLDER) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder of its own for a test, removed with all that is in it.
class ScratchFolder {
 public:
  ScratchFolder() {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder " + path_);
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// The host's path of a name in the folder, or that of the folder itself.
  [[nodiscard]] std::string Host(const std::string& name = "") const {
    return name.empty() ? path_ : path_ + '/' + name;
  }
  /// The same, as the logic speaks it.
  [[nodiscard]] std::string Logic(const std::string& name = "") const {
    return files::LogicPath(path_) + (name.empty() ? "" : '\\' + name);
  }
  void Put(const std::string& name, const std::string& text) const {
    std::ofstream(Host(name), std::ios::binary) << text;
  }
  [[nodiscard]] std::string Get(const std::string& name) const {
    std::ifstream file(Host(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string path_ = (std::filesystem::temp_directory_path() / "kalvon-XXXXXX").string();
};
