// SPDX-License-Identifier: MIT
#include "files/text_file.h"

#include <unistd.h>

#include <cerrno>

#include "files/descriptor.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

namespace {

constexpr std::size_t block_size = std::size_t{64} * 1024;
constexpr std::string_view lf = "\n";
constexpr std::size_t longest_line = std::size_t{16} * 1024 * 1024;

}  // namespace

TextReader::TextReader(std::string_view path, std::string_view line_end)
    : descriptor_(OpenForReading(path)), line_end_(line_end) {}

TextReader::~TextReader() { close(descriptor_); }

/// Reads one block more; whether there was one.
bool TextReader::Fill() {
  if (exhausted_) return false;
  buffer_.erase(0, position_);
  position_ = 0;
  char block[block_size];
  ssize_t count = 0;
  do {
    count = read(descriptor_, block, block_size);
  } while (count < 0 && errno == EINTR);
  unreadable_ = count < 0;
  exhausted_ = count <= 0;
  if (!exhausted_) buffer_.append(block, static_cast<std::size_t>(count));
  return !exhausted_;
}

void TextReader::Fail(int number) {
  buffer_.clear();
  position_ = 0;
  exhausted_ = true;
  unreadable_ = false;
  throw RuntimeError(number);
}

bool TextReader::AtEnd() { return position_ == buffer_.size() && !Fill() && !unreadable_; }

std::string_view TextReader::LineEnd() {
  for (std::size_t searched = 0; line_end_.empty();) {
    const std::size_t end = buffer_.find('\n', searched);
    searched = buffer_.size();
    if (end == std::string::npos && searched <= longest_line && Fill()) continue;
    const bool alone = end != std::string::npos && (end == 0 || buffer_[end - 1] != '\r');
    line_end_ = alone ? lf : cr_lf;
  }
  return line_end_;
}

std::string TextReader::Line() {
  if (AtEnd()) throw RuntimeError(error::input_past_end);
  const std::string_view line_end = LineEnd();
  std::size_t searched = 0;
  for (;;) {
    const std::size_t end = buffer_.find(line_end, position_ + searched);
    const std::size_t length = (end == std::string::npos ? buffer_.size() : end) - position_;
    if (length > longest_line) Fail(error::out_of_string_space);
    if (end == std::string::npos) {
      // The last byte may be the CR of a pair that the next block completes.
      searched = length == 0 ? 0 : length - 1;
      if (Fill()) continue;
      if (unreadable_) Fail(error::device_io);
    }
    std::string line = buffer_.substr(position_, length);
    position_ = end == std::string::npos ? buffer_.size() : end + line_end.size();
    while (line_end == lf && line.ends_with('\r')) line.pop_back();
    return line;
  }
}

void Kill(std::string_view path) {
  if (unlink(HostPath(path).c_str()) == 0) return;
  throw RuntimeError(NoSuchFile(errno) ? error::file_not_found : error::permission_denied);
}

}  // namespace files
