// SPDX-License-Identifier: MIT
#include "files/binary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "files/descriptor.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

namespace {

int OpenNew(std::string_view path) {
  const std::string host_path = HostPath(path);
  if (unlink(host_path.c_str()) != 0 && errno != ENOENT) throw RuntimeError(OpenFailure(errno));
  Descriptor file(host_path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0666);
  if (!file.IsOpen()) throw RuntimeError(OpenFailure(errno));
  return file.Release();
}

}  // namespace

BinaryReader::BinaryReader(std::string_view path) : descriptor_(OpenForReading(path)) {}

BinaryReader::~BinaryReader() { close(descriptor_); }

std::string_view BinaryReader::Get(std::int64_t position, std::span<char> buffer) const {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const ssize_t count = pread(descriptor_, buffer.data() + filled, buffer.size() - filled,
                                position - 1 + static_cast<std::int64_t>(filled));
    if (count == 0) break;
    if (count < 0 && errno != EINTR) throw RuntimeError(error::device_io);
    if (count > 0) filled += static_cast<std::size_t>(count);
  }
  return {buffer.data(), filled};
}

BinaryWriter::BinaryWriter(std::string_view path) : descriptor_(OpenNew(path)) {}

BinaryWriter::~BinaryWriter() { close(descriptor_); }

void BinaryWriter::Put(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = write(descriptor_, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) throw RuntimeError(WriteFailure(errno));
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void CutOff(std::string_view path, std::int64_t bytes) {
  const Descriptor file(HostPath(path), O_WRONLY | O_NOFOLLOW);
  if (ftruncate(file.number(), bytes) != 0) throw RuntimeError(error::device_io);
}

}  // namespace files
