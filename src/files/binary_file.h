// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace files {

/// Reads a file by byte position.
class BinaryReader {
 public:
  /// Opens the file of a path of the logic. Error 53 if there is none, 75 if it cannot be read or
  /// is no regular file; as for HostPath.
  explicit BinaryReader(std::string_view path);
  ~BinaryReader();
  BinaryReader(const BinaryReader&) = delete;
  BinaryReader& operator=(const BinaryReader&) = delete;

  /// Fills the buffer with the bytes from a position on, which counts from 1; returns those that
  /// the file has there. Error 57 if it cannot be read.
  [[nodiscard]] std::string_view Get(std::int64_t position, std::span<char> buffer) const;

 private:
  int descriptor_;
};

/// Writes a new file in the place of an old one. A link in its place is removed and not followed.
class BinaryWriter {
 public:
  /// Error 61, 70 or 75 if the file cannot be made, 76 if there is no such folder; as for HostPath.
  explicit BinaryWriter(std::string_view path);
  ~BinaryWriter();
  BinaryWriter(const BinaryWriter&) = delete;
  BinaryWriter& operator=(const BinaryWriter&) = delete;

  /// Adds bytes at the end. Error 61 or 57 if the disk does not take them.
  void Put(std::string_view bytes) const;

 private:
  int descriptor_;
};

/// Cuts off what a file has behind its first bytes. Error 57 if that cannot be.
void CutOff(std::string_view path, std::int64_t bytes);

}  // namespace files
