// SPDX-License-Identifier: MIT
#include "files/host_paths.h"

#include <algorithm>
#include <climits>
#include <vector>

#include "files/drives.h"
#include "files/folder_entries.h"
#include "files/run_time_error.h"

namespace files {

namespace {

std::string MountPoint(char letter) {
  if (letter == 'c') return "/";
  for (const Drive& drive : Drives()) {
    if (drive.letter == letter) return drive.mounted_at;
  }
  throw RuntimeError(error::path_not_found);
}

char DriveLetter(std::string_view path) {
  const bool has_root = path.size() >= 2 && path[1] == ':' && (path.size() == 2 || path[2] == '\\');
  if (!has_root) throw RuntimeError(error::path_not_found);
  const char letter = path[0];
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::vector<std::string_view> Components(std::string_view path, char separator) {
  std::vector<std::string_view> components;
  while (!path.empty()) {
    const std::string_view component = path.substr(0, path.find(separator));
    path.remove_prefix(std::min(path.size(), component.size() + 1));
    if (component == "..") {
      if (!components.empty()) components.pop_back();
    } else if (!component.empty() && component != ".") {
      components.push_back(component);
    }
  }
  return components;
}

/// `path` lies in `root`, which is taken as it stands.
std::string Resolved(const std::string& path, const std::string& root) {
  std::size_t exact = path.size();
  while (exact > root.size() && !Exists(path.substr(0, exact))) {
    exact = std::max(path.rfind('/', exact - 1), root.size());
  }
  std::string resolved = path.substr(0, exact);
  for (const std::string_view component : Components(std::string_view(path).substr(exact), '/')) {
    resolved = PathInFolder(resolved, component);
  }
  return resolved;
}

/// `host_path` lies in the mount point.
std::string PathOnDrive(char letter, const std::string& mounted_at, std::string_view host_path) {
  std::string path{letter, ':'};
  for (const std::string_view component :
       Components(host_path.substr(std::min(host_path.size(), mounted_at.size())), '/')) {
    path.append("\\").append(component);
  }
  return path.size() == 2 ? path + '\\' : path;
}

}  // namespace

std::string HostPath(std::string_view path) {
  const std::string root = MountPoint(DriveLetter(path));
  std::string host_path = root;
  for (const std::string_view component : Components(path.substr(2), '\\')) {
    host_path = Below(host_path, component);
    const bool sayable = component.find('/') == std::string_view::npos &&
                         component.find('\0') == std::string_view::npos;
    if (!sayable || host_path.size() >= PATH_MAX) throw RuntimeError(error::path_not_found);
  }
  return Resolved(host_path, root);
}

std::string LogicPath(std::string_view host_path) {
  const bool sayable = host_path.starts_with('/') && host_path.find('\\') == std::string_view::npos;
  if (!sayable) throw RuntimeError(error::path_not_found);
  std::string plain;
  for (const std::string_view component : Components(host_path, '/')) {
    plain.append("/").append(component);
  }
  const std::vector<Drive> drives = Drives();
  const Drive* nearest = &drives.front();
  // What is mounted in another drive comes after it.
  for (const Drive& drive : drives) {
    if ((plain + '/').starts_with(drive.mounted_at + '/')) nearest = &drive;
  }
  return PathOnDrive(nearest->letter, nearest->mounted_at, plain);
}

std::string PathOnDisk(std::string_view path) {
  const char letter = DriveLetter(path);
  return PathOnDrive(letter, MountPoint(letter), HostPath(path));
}

std::string WithBackslash(std::string path) {
  if (!path.ends_with('\\')) path += '\\';
  return path;
}

}  // namespace files
