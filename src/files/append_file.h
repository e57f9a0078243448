// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <stop_token>
#include <string>
#include <string_view>
#include <thread>

#include "files/descriptor.h"

namespace files {

/// A file that grows at its end, for one program at a time. The host has what was added before
/// Append returns, so that it outlives the program; the disk has it within a second, so that it
/// outlives the host. A thread of its own waits for the disk.
class AppendFile {
 public:
  /// Opens a file, or makes one that is for its owner alone. Error 70 if another program has it
  /// or there is no right to it; 61, 75 or 76 if it cannot be opened.
  explicit AppendFile(std::string host_path);
  /// Waits until the disk has it all.
  ~AppendFile();
  AppendFile(const AppendFile&) = delete;
  AppendFile& operator=(const AppendFile&) = delete;

  [[nodiscard]] const std::string& HostPath() const { return host_path_; }
  /// What it holds, the first 64 MiB of a larger one. Error 57 if it cannot be read.
  [[nodiscard]] std::string Bytes() const;
  /// Leaves only the first bytes. Error 57 or 61 if that fails.
  void Cut(std::size_t size);
  /// Gives the file another name in the same file system. Error 61, 70, 75 or 76 if that fails.
  void Rename(const std::string& host_path);

  /// Adds bytes. Those that the disk does not take are kept, and go before the next. Returns the
  /// number of the error that holds them back, 61 or 57, or 0.
  int Append(std::string_view bytes);

 private:
  void KeepSynced(const std::stop_token& stop);

  std::string host_path_;
  Descriptor file_;
  bool new_name_ = false;  ///< Whether the disk may not know the name yet.
  std::string left_;       ///< Bytes that the disk has not taken yet.
  std::mutex mutex_;
  std::condition_variable_any written_;
  bool unsynced_ = false;
  std::atomic<int> sync_failure_ = 0;
  std::jthread syncing_;  ///< Begins with the first bytes. The last member, so it ends first.
};

}  // namespace files
