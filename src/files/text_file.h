// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace files {

/// What ends the lines of a text file: CR LF, or what its first line says. If that one ends in LF
/// alone, all do, and each CR that stands before an LF goes with it.
inline constexpr std::string_view cr_lf = "\r\n";
inline constexpr std::string_view as_the_first_line;

/// Reads a text file line by line, a line being what stands before the next line end or the end.
class TextReader {
 public:
  /// Opens the file of a path of the logic. Error 53 if there is none, 75 if it cannot be read or
  /// is no regular file (a pipe, a device or a folder is never waited for); as for HostPath.
  explicit TextReader(std::string_view path, std::string_view line_end = cr_lf);
  ~TextReader();
  TextReader(const TextReader&) = delete;
  TextReader& operator=(const TextReader&) = delete;

  /// Whether nothing is left, not even a failure that Line has yet to raise.
  [[nodiscard]] bool AtEnd();
  /// What ends the lines: CR LF or LF.
  std::string_view LineEnd();
  /// The next line, without its end. Error 62 at the end of the file, 57 if the file cannot be
  /// read on, 14 for a line of more than 16 MiB. After the last two the reader is at its end, so
  /// that a loop which passes over failures ends too.
  std::string Line();

 private:
  bool Fill();
  [[noreturn]] void Fail(int number);

  int descriptor_;
  std::string buffer_;
  std::string_view line_end_;  ///< Empty until it is known.
  std::size_t position_ = 0;   ///< Of what is left in the buffer.
  bool exhausted_ = false;
  bool unreadable_ = false;
};

/// Deletes a file. Error 53 if there is none, 70 if it cannot be deleted.
void Kill(std::string_view path);

}  // namespace files
