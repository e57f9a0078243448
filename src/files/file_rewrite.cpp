// SPDX-License-Identifier: MIT
#include "files/file_rewrite.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <thread>

#include "files/descriptor.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

namespace {

using Status = struct stat;

Deadline Now() { return std::chrono::steady_clock::now(); }

constexpr std::size_t block_size = std::size_t{64} * 1024;

/// Of the file itself if it is a link; empty if there is none. Error 75 if that cannot be told.
std::optional<Status> StatusOf(const std::string& host_path) {
  Status status{};
  if (lstat(host_path.c_str(), &status) == 0) return status;
  if (NoSuchFile(errno)) return std::nullopt;
  throw RuntimeError(error::path_file_access);
}

/// The file to which a chain of symbolic links leads, also if that file does not exist yet.
std::string LinkTarget(const std::string& host_path) {
  constexpr int most_links = 40;
  std::filesystem::path path = host_path;
  for (int links = 0; links < most_links; ++links) {
    std::error_code no_link;
    const std::filesystem::path next = std::filesystem::read_symlink(path, no_link);
    if (no_link) return path;
    path = path.parent_path() / next;
  }
  throw RuntimeError(error::path_file_access);
}

void RequireWritable(const std::string& host_path, const Status& status) {
  if (!S_ISREG(status.st_mode)) throw RuntimeError(error::path_file_access);
  // To the administrator every file is writable; a mode without a write bit still is a wish.
  const bool protected_file =
      (status.st_mode & 0222) == 0 || faccessat(AT_FDCWD, host_path.c_str(), W_OK, AT_EACCESS) != 0;
  if (protected_file) throw RuntimeError(error::permission_denied);
}

/// A file system that knows no locks is no reason not to save.
void Lock(int descriptor, Deadline deadline) {
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    if (Now() > deadline) throw RuntimeError(error::permission_denied);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

// Two programs may save the same file at once. The lock of the temporary file is the right to fill
// it and to let it take the target's place, or to throw it away. While waiting for it, the name may
// have gone with the other program's file, so that the lock is worth nothing and, above all, what
// is locked is the target. So only a file that still bears the name under the lock counts.

/// Throws away what lies in the temporary file's place, once no program fills it. It is never used,
/// as it may be another user's, or have other names. False if it cannot go.
bool MakeRoom(const std::string& temporary, const std::string& target, Deadline deadline) {
  // In this order: what was temporary may be the target a moment later, but not the other way.
  const std::optional<Status> old = StatusOf(target);
  const std::optional<Status> there = StatusOf(temporary);
  if (!there) return true;
  if (!S_ISREG(there->st_mode) && !S_ISLNK(there->st_mode)) return false;
  const bool is_target = old && IsSameFile(*there, *old) && there->st_nlink == 1;
  if (is_target) throw RuntimeError(error::path_file_access);

  const Descriptor file(temporary, O_RDWR | O_NOFOLLOW);
  if (!file.IsOpen() && NoSuchFile(errno)) return true;
  if (file.IsOpen()) {
    Lock(file.number(), deadline);
    if (!BearsName(file.number(), temporary)) return true;
  }
  return unlink(temporary.c_str()) == 0 || errno == ENOENT;
}

/// Makes the temporary file, empty and locked; -1 if the name is taken.
int Create(const std::string& temporary, mode_t mode, Deadline deadline) {
  Descriptor file(temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
  if (!file.IsOpen() && errno != EEXIST) throw RuntimeError(OpenFailure(errno));
  if (!file.IsOpen()) return -1;
  // Before it was locked, another program may have thrown it away.
  if (const int error = pass_over([&] { Lock(file.number(), deadline); }); error != 0) {
    if (BearsName(file.number(), temporary)) unlink(temporary.c_str());
    throw RuntimeError(error);
  }
  return BearsName(file.number(), temporary) ? file.Release() : -1;
}

std::string FolderOf(const std::string& host_path) {
  return host_path.substr(0, host_path.rfind('/') + 1);
}

/// Waits until the disk has it all; whether it has.
bool Sync(int descriptor) {
  int result = 0;
  do {
    result = fsync(descriptor);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

/// Makes the new name last through a power cut, where the file system can.
void FlushFolder(const std::string& host_path) {
  const Descriptor folder(host_path, O_RDONLY | O_DIRECTORY);
  if (folder.IsOpen()) static_cast<void>(Sync(folder.number()));
}

}  // namespace

FileRewrite::FileRewrite(std::string_view path, std::string_view temporary, Deadline deadline)
    : target_(LinkTarget(HostPath(path))) {
  const bool bare_name =
      !temporary.empty() && temporary != "." && temporary != ".." &&
      temporary.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
  if (!bare_name) throw RuntimeError(error::path_file_access);
  temporary_ = FolderOf(target_).append(temporary);
  if (const std::optional<Status> old = StatusOf(target_)) {
    RequireWritable(target_, *old);
    old_rights_.emplace(target_, *old);
  }
  OpenTemporary(deadline);
}

FileRewrite::~FileRewrite() {
  if (descriptor_ < 0) return;
  if (BearsName(descriptor_, temporary_)) unlink(temporary_.c_str());
  close(descriptor_);
}

void FileRewrite::OpenTemporary(Deadline deadline) {
  constexpr mode_t for_everybody = 0666;
  const mode_t mode = old_rights_ ? old_rights_->ModeBefore() : for_everybody;
  while (MakeRoom(temporary_, target_, deadline)) {
    descriptor_ = Create(temporary_, mode, deadline);
    if (descriptor_ >= 0) return;
    if (Now() > deadline) throw RuntimeError(error::permission_denied);
  }
  for (char digit = '1'; digit <= '9' && descriptor_ < 0; ++digit) {
    temporary_.back() = digit;
    descriptor_ = Create(temporary_, mode, deadline);
  }
  if (descriptor_ < 0) throw RuntimeError(error::path_file_access);
}

void FileRewrite::PrintLine(std::string_view line, std::string_view end) {
  buffer_.append(line).append(end);
  if (buffer_.size() >= block_size) Flush();
}

void FileRewrite::Flush() {
  std::string_view rest = buffer_;
  while (!rest.empty() && failure_ == 0) {
    const ssize_t count = write(descriptor_, rest.data(), rest.size());
    if (count >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      failure_ = WriteFailure(errno);
    }
  }
  buffer_.clear();
  if (failure_ != 0) throw RuntimeError(failure_);
}

void FileRewrite::Commit() {
  Flush();
  if (old_rights_) old_rights_->GiveTo(descriptor_);
  if (!Sync(descriptor_) && errno != EINVAL) {
    failure_ = WriteFailure(errno);
    throw RuntimeError(failure_);
  }
  if (!BearsName(descriptor_, temporary_)) throw RuntimeError(error::path_file_access);
  if (rename(temporary_.c_str(), target_.c_str()) != 0) throw RuntimeError(OpenFailure(errno));
  FlushFolder(FolderOf(target_));
  close(descriptor_);
  descriptor_ = -1;
}

}  // namespace files
