// SPDX-License-Identifier: MIT
#include "files/state_folder.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <string_view>

#include "files/descriptor.h"
#include "files/run_time_error.h"

namespace files {

namespace {

constexpr mode_t owner_alone = 0700;

/// The absolute path that a variable of the environment holds, or an empty one.
std::string PathIn(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value == '/' ? value : "";
}

}  // namespace

std::string StateFolder() {
  std::string folder = PathIn("XDG_STATE_HOME");
  if (folder.empty()) {
    folder = PathIn("HOME");
    if (!folder.empty()) folder += "/.local/state";
  }
  return folder.empty() ? folder : folder + "/kalvon";
}

void MakeOwnFolder(const std::string& host_path) {
  std::size_t end = 0;
  int failure = 0;
  do {
    end = host_path.find('/', end + 1);
    failure = mkdir(host_path.substr(0, end).c_str(), owner_alone) == 0 ? 0 : errno;
  } while (end != std::string::npos);
  if (failure != 0 && failure != EEXIST) throw RuntimeError(OpenFailure(failure));
  chmod(host_path.c_str(), owner_alone);
}

}  // namespace files
