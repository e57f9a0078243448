// SPDX-License-Identifier: MIT
#include "files/folder_entries.h"

#include <sys/stat.h>

#include <QString>
#include <QUtf8StringView>
#include <algorithm>
#include <chrono>
#include <deque>
#include <filesystem>
#include <unordered_map>
#include <utility>

#include "files/run_time_error.h"

namespace files {

namespace {

using Entry = std::filesystem::directory_entry;

/// All entries of a folder, in no order. Error 76 if it is missing or cannot be read.
std::vector<Entry> EntriesOf(const std::string& host_path) {
  std::vector<Entry> entries;
  std::error_code failure;
  std::filesystem::directory_iterator entry(host_path, failure);
  for (; entry != std::filesystem::directory_iterator(); entry.increment(failure)) {
    entries.push_back(*entry);
  }
  if (failure) throw RuntimeError(error::path_not_found);
  return entries;
}

std::string NameOf(const Entry& entry) { return entry.path().filename().string(); }

bool IsFolder(const Entry& entry) {
  std::error_code gone;
  return entry.is_directory(gone);
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

/// The names of a folder by their lower case. A name found in it may have gone, and one not found
/// may have come since the folder was read.
class FoldedNames {
 public:
  explicit FoldedNames(std::string folder) : folder_(std::move(folder)) { Read(); }

  [[nodiscard]] const std::string& Folder() const { return folder_; }

  /// The name on disk, or the name itself if there is none.
  std::string Find(std::string_view name) {
    const std::string folded = LowerCase(name);
    if (const std::string* found = Known(folded)) return *found;
    if (!UpToDate()) {
      Read();
      if (const std::string* found = Known(folded)) return *found;
    }
    return std::string(name);
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
    pass_over([&] {
      for (const Entry& entry : EntriesOf(folder_)) {
        const std::string name = NameOf(entry);
        const auto [place, fresh] = names_.try_emplace(LowerCase(name), name);
        if (!fresh && name < place->second) place->second = name;
      }
    });
  }

  std::string folder_;
  std::unordered_map<std::string, std::string> names_;
  struct stat status_ {};
  Clock::time_point read_at_;
};

/// Lower-cased paths of hundreds of files come in a row, and each level of theirs may need a look
/// into its folder, so the folders read last are kept.
std::string NameOnDisk(const std::string& folder, std::string_view name) {
  constexpr std::size_t most_folders = 16;
  static std::deque<FoldedNames> folders;
  const auto known = std::ranges::find(folders, folder, &FoldedNames::Folder);
  if (known != folders.end()) return known->Find(name);
  if (folders.size() == most_folders) folders.pop_front();
  return folders.emplace_back(folder).Find(name);
}

}  // namespace

FolderEntries ReadFolder(const std::string& host_path) {
  FolderEntries entries;
  for (const Entry& entry : EntriesOf(host_path)) {
    std::string name = NameOf(entry);
    const bool shown = !name.starts_with('.') && name.find('\\') == std::string::npos;
    if (shown) (IsFolder(entry) ? entries.folders : entries.files).push_back(std::move(name));
  }
  SortWithoutCase(entries.folders);
  SortWithoutCase(entries.files);
  return entries;
}

std::string PathInFolder(const std::string& folder, std::string_view name) {
  const std::string exact = Below(folder, name);
  return Exists(exact) ? exact : Below(folder, NameOnDisk(folder, name));
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

}  // namespace files
