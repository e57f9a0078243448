// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace files {

// Paths as the logic speaks them, `c:\folder\name`, and as the host does. On a POSIX host `c:` is
// the root and further letters are the mounted media. Names are bytes of the host's own encoding.
// A name that holds "\" cannot be spoken of.

/// The host path of a path of the logic, resolved component by component without regard to case,
/// an exact match first. Components that do not exist are taken as they stand, "." and ".." by
/// their meaning in the text. Error 76 for a path that begins with no known drive, or that no file
/// of the host can have.
std::string HostPath(std::string_view path);

/// The path by which the logic speaks of a host path, on the drive that is mounted nearest to it.
/// Error 76 if there is none: the host path is not absolute, or holds "\".
std::string LogicPath(std::string_view host_path);

/// A path of the logic, on the drive that it names, with its names as they are on the disk and no
/// final "\" unless it is a drive's root. Errors as for HostPath.
std::string PathOnDisk(std::string_view path);

/// A path with "\" added if it does not end in one.
std::string WithBackslash(std::string path);

}  // namespace files
