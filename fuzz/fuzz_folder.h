// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "files/host_paths.h"

// What the targets share. Each takes bytes that a stranger may have made, and ends the program with
// a report where something goes wrong that is no run-time error of the layer.

/// Ends the program unless something that always holds does.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// The parts of an input that stands for several files, divided by zero bytes.
inline std::vector<std::string_view> Parts(std::string_view input, std::size_t most) {
  std::vector<std::string_view> parts;
  for (std::size_t end = 0; parts.size() + 1 < most && (end = input.find('\0')) != input.npos;) {
    parts.push_back(input.substr(0, end));
    input.remove_prefix(end + 1);
  }
  parts.push_back(input);
  return parts;
}

/// A folder of the process for the files of one input, empty at first.
class FuzzFolder {
 public:
  FuzzFolder() {
    std::string name = std::filesystem::temp_directory_path() / "kalvon-fuzz-XXXXXX";
    Require(mkdtemp(name.data()) != nullptr);
    path_ = name;
  }
  ~FuzzFolder() { std::filesystem::remove_all(path_); }
  FuzzFolder(const FuzzFolder&) = delete;
  FuzzFolder& operator=(const FuzzFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& HostPath() const { return path_; }
  /// As the logic speaks of it, with a final "\".
  [[nodiscard]] std::string Path() const { return files::LogicPath(path_.string()) + '\\'; }
  /// Writes a file; returns its path in the logic.
  std::string Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return Path() + name;
  }

 private:
  std::filesystem::path path_;
};
