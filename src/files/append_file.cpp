// SPDX-License-Identifier: MIT
#include "files/append_file.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <utility>

#include "files/run_time_error.h"

namespace files {

namespace {

constexpr std::size_t most_bytes = std::size_t{64} * 1024 * 1024;
constexpr std::size_t block_size = std::size_t{64} * 1024;
constexpr mode_t owner_alone = 0600;

}  // namespace

AppendFile::AppendFile(std::string host_path)
    : host_path_(std::move(host_path)),
      file_(host_path_, O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW, owner_alone) {
  if (!file_.IsOpen()) throw RuntimeError(OpenFailure(errno));
  struct stat status {};
  if (fstat(file_.number(), &status) != 0 || !S_ISREG(status.st_mode))
    throw RuntimeError(error::path_file_access);
  new_name_ = status.st_size == 0;
  // A file system that knows no locks is no reason to go without the file. One that has lost its
  // name before it was locked is being replaced by another program.
  const bool taken = flock(file_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (taken || !BearsName(file_.number(), host_path_)) throw RuntimeError(error::permission_denied);
}

AppendFile::~AppendFile() = default;

std::string AppendFile::Bytes() const {
  std::string bytes;
  while (bytes.size() < most_bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + block_size);
    const ssize_t count = pread(file_.number(), &bytes[size], block_size, static_cast<off_t>(size));
    if (count < 0 && errno != EINTR) throw RuntimeError(error::device_io);
    bytes.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count == 0) break;
  }
  return bytes;
}

void AppendFile::Cut(std::size_t size) {
  if (ftruncate(file_.number(), static_cast<off_t>(size)) != 0)
    throw RuntimeError(WriteFailure(errno));
}

void AppendFile::Rename(const std::string& host_path) {
  if (std::rename(host_path_.c_str(), host_path.c_str()) != 0)
    throw RuntimeError(OpenFailure(errno));
  host_path_ = host_path;
  new_name_ = true;
}

int AppendFile::Append(std::string_view bytes) {
  left_.append(bytes);
  while (!left_.empty()) {
    const ssize_t count = write(file_.number(), left_.data(), left_.size());
    if (count < 0 && errno != EINTR) return WriteFailure(errno);
    left_.erase(0, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
  if (!syncing_.joinable())
    syncing_ = std::jthread([this](const std::stop_token& stop) { KeepSynced(stop); });
  {
    const std::lock_guard lock(mutex_);
    unsynced_ = true;
  }
  written_.notify_one();
  return sync_failure_;
}

void AppendFile::KeepSynced(const std::stop_token& stop) {
  constexpr std::chrono::milliseconds pause(500);
  if (new_name_) {
    const std::string folder_path = host_path_.substr(0, host_path_.rfind('/') + 1);
    const Descriptor folder(folder_path, O_RDONLY | O_DIRECTORY);
    if (folder.IsOpen()) static_cast<void>(fsync(folder.number()));
  }
  std::unique_lock lock(mutex_);
  // Once it is asked to stop, what was written before is still synced.
  while (written_.wait(lock, stop, [this] { return unsynced_; })) {
    unsynced_ = false;
    lock.unlock();
    while (fdatasync(file_.number()) != 0 && errno != EINVAL) {
      if (errno == EINTR) continue;
      sync_failure_ = WriteFailure(errno);
      break;
    }
    lock.lock();
    written_.wait_for(lock, stop, pause, [] { return false; });
  }
}

}  // namespace files
