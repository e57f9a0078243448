// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "files/descriptor.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

int OpenForReading(std::string_view path) {
  Descriptor file(HostPath(path), O_RDONLY);
  if (!file.IsOpen()) {
    throw RuntimeError(NoSuchFile(errno) ? error::file_not_found : error::path_file_access);
  }
  struct stat status {};
  const bool regular = fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode);
  if (!regular) throw RuntimeError(error::path_file_access);
  return file.Release();
}

bool IsSameFile(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool BearsName(int descriptor, const std::string& host_path) {
  struct stat opened {};
  struct stat named {};
  return fstat(descriptor, &opened) == 0 && lstat(host_path.c_str(), &named) == 0 &&
         IsSameFile(opened, named);
}

bool NoSuchFile(int host_error) { return host_error == ENOENT || host_error == ENOTDIR; }

int OpenFailure(int host_error) {
  switch (host_error) {
    case ENOENT:
    case ENOTDIR:
      return error::path_not_found;
    case ENOSPC:
    case EDQUOT:
      return error::disk_full;
    case EACCES:
    case EPERM:
    case EROFS:
      return error::permission_denied;
    default:
      return error::path_file_access;
  }
}

int WriteFailure(int host_error) {
  const bool full = host_error == ENOSPC || host_error == EDQUOT || host_error == EFBIG;
  return full ? error::disk_full : error::device_io;
}

}  // namespace files
