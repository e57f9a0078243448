// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace files {

/// The host path of the folder in which the program keeps, for this user, what is no setting and no
/// document. Empty if the user has none.
std::string StateFolder();

/// Makes a folder, and those above it that are missing, for its owner alone. Error 61, 70, 75 or
/// 76 if that fails.
void MakeOwnFolder(const std::string& host_path);

}  // namespace files
