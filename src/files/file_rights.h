// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <string>
#include <utility>
#include <vector>

namespace files {

/// Owner, permissions, access list and extended attributes of a file, to be given to the file that
/// takes its place. What the host does not let be kept, as often the owner, is passed over, and the
/// rights are narrowed then: nobody has more of them than before.
class FileRights {
 public:
  /// Those of the file with this host path and status.
  FileRights(const std::string& host_path, const struct stat& status);

  /// Permissions for the new file until it gets these rights.
  [[nodiscard]] mode_t ModeBefore() const;
  /// Gives all of them to a file of the user.
  void GiveTo(int descriptor) const;

 private:
  [[nodiscard]] mode_t Narrowed(mode_t mode) const;
  [[nodiscard]] std::string NarrowedList() const;

  mode_t mode_;
  uid_t owner_;
  gid_t group_;
  bool has_list_ = false;  ///< Also if that cannot be told.
  std::string list_;       ///< As the host keeps it.
  mode_t common_;          ///< What all have whom the mode and the list name; three bits.
  std::vector<std::pair<std::string, std::string>> attributes_;
};

}  // namespace files
