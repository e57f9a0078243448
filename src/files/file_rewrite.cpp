// SPDX-License-Identifier: MIT
#include "files/file_rewrite.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <thread>

#include "files/descriptor.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

namespace {

using Clock = std::chrono::steady_clock;
using Status = struct stat;

constexpr std::size_t block_size = std::size_t{64} * 1024;

/// Of the file itself if it is a link; empty if there is none.
std::optional<Status> StatusOf(const std::string& host_path) {
  Status status{};
  if (lstat(host_path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool SameFile(const Status& one, const Status& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
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
void Lock(int descriptor, Clock::time_point deadline) {
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    if (Clock::now() > deadline) throw RuntimeError(error::permission_denied);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

void Discard(const std::string& host_path) {
  if (unlink(host_path.c_str()) != 0 && errno != ENOENT) {
    throw RuntimeError(error::path_file_access);
  }
}

/// Opens the temporary file, empty and locked, or returns nothing if another program was faster.
///
/// Two programs may save the same file at once. The lock is the right to fill the temporary file
/// and to let it take the target's place. While waiting for it, the name may have gone with the
/// other program's file, so that the lock is worth nothing and, above all, what is locked is the
/// target. Only a file that still bears the name under the lock is used; one that is not empty is
/// left over and makes room for a new one, because another name may lead to it as well.
std::optional<int> TryOpen(const std::string& temporary, const std::string& target, mode_t mode,
                           Clock::time_point deadline) {
  Descriptor file(temporary, O_RDWR | O_CREAT | O_NOFOLLOW, mode);
  const int failure = errno;
  std::optional<Status> named = StatusOf(temporary);
  if (!file.IsOpen()) {
    // A link is not followed, and a file that an earlier run or another user left is thrown away.
    const bool in_the_way =
        named && (S_ISLNK(named->st_mode) || (S_ISREG(named->st_mode) && failure == EACCES));
    if (!in_the_way) throw RuntimeError(OpenFailure(failure));
    Discard(temporary);
    return std::nullopt;
  }

  Lock(file.number(), deadline);
  Status opened{};
  if (fstat(file.number(), &opened) != 0) throw RuntimeError(error::device_io);
  named = StatusOf(temporary);
  if (!named || !SameFile(opened, *named)) return std::nullopt;

  if (!S_ISREG(opened.st_mode)) throw RuntimeError(error::path_file_access);
  const std::optional<Status> old = StatusOf(target);
  const bool single = opened.st_nlink <= 1;
  if (single && old && SameFile(opened, *old)) throw RuntimeError(error::path_file_access);
  if (single && opened.st_size == 0) return file.Release();
  Discard(temporary);
  return std::nullopt;
}

int OpenTemporary(const std::string& temporary, const std::string& target, mode_t mode) {
  const auto deadline = Clock::now() + std::chrono::seconds(3);
  while (Clock::now() <= deadline) {
    if (const auto descriptor = TryOpen(temporary, target, mode, deadline)) return *descriptor;
  }
  throw RuntimeError(error::permission_denied);
}

std::string FolderOf(const std::string& host_path) {
  return host_path.substr(0, host_path.rfind('/') + 1);
}

/// Makes the new name last through a power cut, where the file system can.
void FlushFolder(const std::string& host_path) {
  const Descriptor folder(host_path, O_RDONLY | O_DIRECTORY);
  if (folder.IsOpen()) fsync(folder.number());
}

}  // namespace

FileRewrite::FileRewrite(std::string_view path, std::string_view temporary)
    : target_(LinkTarget(HostPath(path))) {
  const bool bare_name =
      !temporary.empty() && temporary != "." && temporary != ".." &&
      temporary.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
  if (!bare_name) throw RuntimeError(error::path_file_access);
  temporary_ = FolderOf(target_).append(temporary);
  const std::optional<Status> old = StatusOf(target_);
  if (old) RequireWritable(target_, *old);
  // What is rewritten may be private, so until the old permissions are known nobody else reads it.
  descriptor_ = OpenTemporary(temporary_, target_, old ? 0600 : 0666);
}

FileRewrite::~FileRewrite() {
  if (descriptor_ < 0) return;
  if (TemporaryIsOurs()) unlink(temporary_.c_str());
  close(descriptor_);
}

bool FileRewrite::TemporaryIsOurs() const {
  Status opened{};
  const std::optional<Status> named = StatusOf(temporary_);
  return named && fstat(descriptor_, &opened) == 0 && SameFile(opened, *named);
}

void FileRewrite::PrintLine(std::string_view line) {
  buffer_.append(line).append("\r\n");
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

/// Failures are passed over: some file systems have no permissions to set.
void FileRewrite::TakeOldPermissions() const {
  const std::optional<Status> old = StatusOf(target_);
  Status fresh{};
  if (!old || fstat(descriptor_, &fresh) != 0) return;
  mode_t mode = old->st_mode & 07777;
  const bool same_owner = fresh.st_uid == old->st_uid && fresh.st_gid == old->st_gid;
  if (!same_owner && fchown(descriptor_, old->st_uid, old->st_gid) != 0) {
    constexpr auto unchanged = static_cast<uid_t>(-1);
    mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    // Another group than the old file's gets no more than everybody has.
    if (fresh.st_gid != old->st_gid && fchown(descriptor_, unchanged, old->st_gid) != 0) {
      mode &= ~static_cast<mode_t>(S_IRWXG) | ((mode & S_IRWXO) << 3);
    }
  }
  static_cast<void>(fchmod(descriptor_, mode));
}

void FileRewrite::Commit() {
  Flush();
  TakeOldPermissions();
  if (fsync(descriptor_) != 0 && errno != EINVAL) {
    failure_ = WriteFailure(errno);
    throw RuntimeError(failure_);
  }
  if (!TemporaryIsOurs() || rename(temporary_.c_str(), target_.c_str()) != 0) {
    throw RuntimeError(error::path_file_access);
  }
  FlushFolder(FolderOf(target_));
  close(descriptor_);
  descriptor_ = -1;
}

}  // namespace files
