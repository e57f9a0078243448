// SPDX-License-Identifier: MIT
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace files {

namespace {

bool IsFolder(DIR* parent, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_DIR;
  struct stat status {};
  return fstatat(dirfd(parent), static_cast<const char*>(entry.d_name), &status, 0) == 0 &&
         S_ISDIR(status.st_mode);
}

void SortWithoutCase(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(names.size());
  for (std::string& name : names) {
    std::string key = LowerCase(name);
    keyed.emplace_back(std::move(key), std::move(name));
  }
  std::ranges::sort(keyed);
  std::ranges::transform(keyed, names.begin(), [](auto& pair) { return std::move(pair.second); });
}

}  // namespace

FolderEntries ReadFolder(std::string_view path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(
      opendir(HostPath(path).c_str()), [](DIR* open_folder) { return closedir(open_folder); });
  if (!folder) throw RuntimeError(error::path_not_found);
  FolderEntries entries;
  errno = 0;
  while (const dirent* entry = readdir(folder.get())) {
    std::string name = static_cast<const char*>(entry->d_name);
    const bool shown = !name.starts_with('.') && name.find('\\') == std::string::npos;
    if (!shown) continue;
    (IsFolder(folder.get(), *entry) ? entries.folders : entries.files).push_back(std::move(name));
    errno = 0;
  }
  if (errno != 0) throw RuntimeError(error::path_not_found);
  SortWithoutCase(entries.folders);
  SortWithoutCase(entries.files);
  return entries;
}

}  // namespace files
