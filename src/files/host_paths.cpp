// SPDX-License-Identifier: MIT
#include "files/host_paths.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <QUtf8StringView>
#include <algorithm>
#include <chrono>
#include <climits>
#include <deque>
#include <memory>
#include <unordered_map>
#include <utility>

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

std::string Below(const std::string& folder, std::string_view name) {
  std::string path = folder;
  if (!path.ends_with('/')) path += '/';
  return path += name;
}

bool Exists(const std::string& host_path) {
  struct stat status {};
  return lstat(host_path.c_str(), &status) == 0;
}

using FolderHandle = std::unique_ptr<DIR, int (*)(DIR*)>;

FolderHandle OpenFolder(const std::string& host_path) {
  return {opendir(host_path.c_str()), [](DIR* folder) { return closedir(folder); }};
}

/// The names of a folder by their lower case. A name found in it may have gone, and one not found
/// may have come since the folder was read.
class FoldedNames {
 public:
  explicit FoldedNames(std::string folder) : folder_(std::move(folder)) { Read(); }

  [[nodiscard]] const std::string& Folder() const { return folder_; }

  /// The name on disk, or the name itself if there is none.
  std::string Find(const std::string& name) {
    const std::string folded = LowerCase(name);
    if (const std::string* found = Known(folded)) return *found;
    if (!UpToDate()) {
      Read();
      if (const std::string* found = Known(folded)) return *found;
    }
    return name;
  }

 private:
  using Clock = std::chrono::system_clock;

  const std::string* Known(const std::string& folded) const {
    const auto found = names_.find(folded);
    const bool known = found != names_.end() && Exists(Below(folder_, found->second));
    return known ? &found->second : nullptr;
  }

  /// Some file systems count the time of a change in steps of two seconds: two changes within one
  /// step look like one.
  [[nodiscard]] bool UpToDate() const {
    struct stat now {};
    return stat(folder_.c_str(), &now) == 0 && now.st_ino == status_.st_ino &&
           now.st_dev == status_.st_dev && now.st_mtim.tv_sec == status_.st_mtim.tv_sec &&
           now.st_mtim.tv_nsec == status_.st_mtim.tv_nsec &&
           Clock::to_time_t(read_at_) - now.st_mtim.tv_sec > 2;
  }

  void Read() {
    names_.clear();
    read_at_ = Clock::now();
    if (stat(folder_.c_str(), &status_) != 0) return;
    const FolderHandle folder = OpenFolder(folder_);
    if (!folder) return;
    while (const dirent* entry = readdir(folder.get())) {
      const std::string name = static_cast<const char*>(entry->d_name);
      const auto [place, fresh] = names_.try_emplace(LowerCase(name), name);
      if (!fresh && name < place->second) place->second = name;
    }
  }

  std::string folder_;
  std::unordered_map<std::string, std::string> names_;
  struct stat status_ {};
  Clock::time_point read_at_;
};

/// Lower-cased paths of hundreds of files come in a row, and each level of theirs may need a look
/// into its folder, so the folders read last are kept.
std::string NameOnDisk(const std::string& folder, const std::string& name) {
  constexpr std::size_t most_folders = 16;
  static std::deque<FoldedNames> folders;
  const auto known = std::ranges::find(folders, folder, &FoldedNames::Folder);
  if (known != folders.end()) return known->Find(name);
  if (folders.size() == most_folders) folders.pop_front();
  return folders.emplace_back(folder).Find(name);
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
    const std::string name(component);
    std::string next = Below(resolved, name);
    if (!Exists(next)) next = Below(resolved, NameOnDisk(resolved, name));
    resolved = std::move(next);
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
  for (const Drive& drive : drives) {
    const bool holds = (plain + '/').starts_with(drive.mounted_at + '/');
    if (holds && drive.mounted_at.size() > nearest->mounted_at.size()) nearest = &drive;
  }
  return PathOnDrive(nearest->letter, nearest->mounted_at, plain);
}

std::string PathOnDisk(std::string_view path) {
  const char letter = DriveLetter(path);
  return PathOnDrive(letter, MountPoint(letter), HostPath(path));
}

std::string LowerCase(std::string_view text) {
  const auto is_ascii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (!std::ranges::all_of(text, is_ascii) && QUtf8StringView(text).isValidUtf8()) {
    return QString::fromUtf8(text).toLower().toStdString();
  }
  std::string lower(text);
  for (char& byte : lower) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
  }
  return lower;
}

std::string WithBackslash(std::string path) {
  if (!path.ends_with('\\')) path += '\\';
  return path;
}

}  // namespace files
