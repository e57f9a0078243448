// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "files/file_rights.h"
#include "files/text_file.h"

namespace files {

/// Until when a program waits for others. Without waiting, all works also after it.
using Deadline = std::chrono::steady_clock::time_point;
inline Deadline InASecond() { return std::chrono::steady_clock::now() + std::chrono::seconds(1); }

/// Writes a file anew through a temporary file in the same folder. The file's name leads to a whole
/// file at every moment: the new one takes its place in one step, complete and flushed, or not at
/// all. Its rights survive as FileRights says, and so do symbolic links. A second program that
/// rewrites the same file at the same time waits for its turn.
class FileRewrite {
 public:
  /// `temporary` is the bare name of the temporary file, in the folder of `path`; for a symbolic
  /// link it stands beside the link's target instead. What an earlier run left under that name is
  /// thrown away, a link in its place is not followed. If what lies there cannot go, as a folder, a
  /// pipe or a stranger's file, the name ends in a digit instead. Error 70 if the old file exists
  /// and is protected against writing, or if another program does not finish with it in time; 61,
  /// 70 or 75 if the temporary file cannot be made, 76 if there is no such folder.
  FileRewrite(std::string_view path, std::string_view temporary, Deadline deadline = InASecond());
  /// Removes the temporary file unless it has taken the old one's place.
  ~FileRewrite();
  FileRewrite(const FileRewrite&) = delete;
  FileRewrite& operator=(const FileRewrite&) = delete;

  /// Adds a line and its end. Error 61 or 57 if the disk does not take it.
  void PrintLine(std::string_view line, std::string_view end = cr_lf);
  /// Flushes and replaces. Error 61 or 57 if the disk has not taken all of it, also in an earlier
  /// PrintLine, 70 or 75 if the new file cannot take the old one's place; the old file then stays.
  void Commit();

 private:
  void OpenTemporary(Deadline deadline);
  void Flush();

  std::string target_;                    ///< Host path.
  std::string temporary_;                 ///< Host path.
  std::optional<FileRights> old_rights_;  ///< None without an old file.
  int descriptor_ = -1;  ///< -1 once the temporary file has taken the old one's place.
  std::string buffer_;
  int failure_ = 0;
};

}  // namespace files
