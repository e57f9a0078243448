// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <utility>

namespace files {

/// An open file of the host, closed at the end of its life.
class Descriptor {
 public:
  /// Opens a file without waiting for it: a pipe must not stop the program. No program that is
  /// started gets it.
  Descriptor(const std::string& host_path, int flags, mode_t mode = 0)
      // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the host has no other way.
      : number_(open(host_path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode)) {}
  ~Descriptor() {
    if (IsOpen()) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }
  /// Leaves the closing to the caller.
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

/// Opens the file of a path of the logic for reading, to be closed by the caller. Error 53 if there
/// is none, 75 if it cannot be read or is no regular file.
int OpenForReading(std::string_view path);

/// Whether both are of one file.
bool IsSameFile(const struct stat& one, const struct stat& other);
/// Whether the name leads to the open file.
bool BearsName(int descriptor, const std::string& host_path);

// From the host's number of a failure: that there is no such file, and the number of the run-time
// error for a failed open and write.
bool NoSuchFile(int host_error);
int OpenFailure(int host_error);
int WriteFailure(int host_error);

}  // namespace files
