// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace files {

/// Reads a text file line by line, a line being what stands before the next CR LF or the end.
class TextReader {
 public:
  /// Opens the file of a path of the logic. Error 53 if there is none, 75 if it cannot be read or
  /// is no regular file (a pipe, a device or a folder is never waited for); as for HostPath.
  explicit TextReader(std::string_view path);
  ~TextReader();
  TextReader(const TextReader&) = delete;
  TextReader& operator=(const TextReader&) = delete;

  /// Whether nothing is left, not even a failure that Line has yet to raise.
  [[nodiscard]] bool AtEnd();
  /// The next line, without its CR LF. Error 62 at the end of the file, 57 if the file cannot be
  /// read on, 14 for a line of more than 16 MiB. After the last two the reader is at its end, so
  /// that a loop which passes over failures ends too.
  std::string Line();

 private:
  bool Fill();
  [[noreturn]] void Fail(int number);

  int descriptor_;
  std::string buffer_;
  std::size_t position_ = 0;  ///< Of what is left in the buffer.
  bool exhausted_ = false;
  bool unreadable_ = false;
};

/// Writes a file anew through a temporary file in the same folder. The file's name leads to a whole
/// file at every moment: the new one takes its place in one step, complete and flushed, or not at
/// all. Permissions, owner where possible, and symbolic links survive. A second program that
/// rewrites the same file at the same time waits for its turn.
class FileRewrite {
 public:
  /// `temporary` is the bare name of the temporary file, in the folder of `path`; for a symbolic
  /// link it stands beside the link's target instead. What an earlier run left under that name is
  /// thrown away, a link in its place is not followed. Error 70 if the old file exists and is
  /// protected against writing, or if another program does not finish with it within 3 seconds; 61
  /// or 75 if the temporary file cannot be made, 76 if there is no such folder.
  FileRewrite(std::string_view path, std::string_view temporary);
  /// Removes the temporary file unless it has taken the old one's place.
  ~FileRewrite();
  FileRewrite(const FileRewrite&) = delete;
  FileRewrite& operator=(const FileRewrite&) = delete;

  /// Adds a line and CR LF. Error 61 or 57 if the disk does not take it.
  void PrintLine(std::string_view line);
  /// Flushes and replaces. Error 61 or 57 if the disk has not taken all of it, also in an earlier
  /// PrintLine, 75 if the new file cannot take the old one's place; the old file then stays.
  void Commit();

 private:
  void Flush();
  [[nodiscard]] bool TemporaryIsOurs() const;
  void TakeOldPermissions() const;

  std::string target_;     ///< Host path.
  std::string temporary_;  ///< Host path.
  int descriptor_ = -1;    ///< -1 once the temporary file has taken the old one's place.
  std::string buffer_;
  int failure_ = 0;
};

/// Deletes a file. Error 53 if there is none, 70 if it cannot be deleted.
void Kill(std::string_view path);

/// Renames a file. Error 53 if there is none, 58 if the new name is taken, 75 if it cannot be done.
void Name(std::string_view from, std::string_view to);

}  // namespace files
