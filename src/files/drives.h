// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace files {

/// A drive: its letter, the host folder where it is mounted, and its row in a list.
struct Drive {
  char letter;
  std::string mounted_at;
  std::string row;
};

/// The drives that there are now, `c:` first, then in the order of the folders where they are
/// mounted.
std::vector<Drive> Drives();

/// Lets another file stand for the host's table of mounted media.
void MountTable(const std::string& host_path);

}  // namespace files
