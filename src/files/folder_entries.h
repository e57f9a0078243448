// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace files {

// The names in folders, by paths of the host. Whoever asks for a name may spell it in other cases.

/// Entries of a folder, without the hidden ones and those that cannot be spoken of, sorted without
/// regard to case. Whatever is no folder counts as a file.
struct FolderEntries {
  std::vector<std::string> folders;
  std::vector<std::string> files;
};

/// Error 76 if the folder is missing or cannot be read.
FolderEntries ReadFolder(const std::string& host_path);

/// The path of a name in a folder.
std::string Below(const std::string& folder, std::string_view name);

/// The same, with the name in the case in which it stands there, an exact match first. A
/// name that is not there is taken as it stands.
std::string PathInFolder(const std::string& folder, std::string_view name);

/// Whether there is a file, a folder or a link.
bool Exists(const std::string& host_path);

/// Lower case, in the host's encoding; in bytes that are no text only the letters of ASCII change.
std::string LowerCase(std::string_view text);

}  // namespace files
