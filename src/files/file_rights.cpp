// SPDX-License-Identifier: MIT
#include "files/file_rights.h"

#include <linux/limits.h>
#include <linux/posix_acl.h>
#include <linux/xattr.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace files {

namespace {

constexpr auto list_name = XATTR_NAME_POSIX_ACL_ACCESS;

// A list is a head and entries. The numbers of an entry have their low bytes at these places.
constexpr std::size_t head_size = 4;
constexpr std::size_t entry_size = 8;
constexpr std::size_t tag_place = 0;
constexpr std::size_t rights_place = 2;

constexpr mode_t all_rights = 07;

/// Nothing if there is none, or it cannot be read.
std::optional<std::string> AttributeOf(const std::string& host_path, const char* name) {
  std::string value(XATTR_SIZE_MAX, '\0');
  const ssize_t size = lgetxattr(host_path.c_str(), name, value.data(), value.size());
  if (size < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(size));
  return value;
}

/// All but the access list.
std::vector<std::pair<std::string, std::string>> AttributesOf(const std::string& host_path) {
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string names(XATTR_LIST_MAX, '\0');
  const ssize_t size = llistxattr(host_path.c_str(), names.data(), names.size());
  names.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
  for (std::size_t at = 0, end = 0; at < names.size(); at = end + 1) {
    end = names.find('\0', at);
    const std::string name = names.substr(at, end - at);
    if (name == list_name) continue;
    if (auto value = AttributeOf(host_path, name.c_str())) attributes.emplace_back(name, *value);
  }
  return attributes;
}

}  // namespace

FileRights::FileRights(const std::string& host_path, const struct stat& status)
    : mode_(status.st_mode & 07777),
      owner_(status.st_uid),
      group_(status.st_gid),
      common_((mode_ >> 6) & (mode_ >> 3) & mode_ & all_rights),
      attributes_(AttributesOf(host_path)) {
  const auto list = AttributeOf(host_path, list_name);
  has_list_ = list || (errno != ENODATA && errno != ENOTSUP);
  if (!has_list_) return;
  list_ = list.value_or("");
  if (list_.empty()) common_ = 0;
  for (std::size_t entry = head_size; entry + entry_size <= list_.size(); entry += entry_size)
    common_ &= static_cast<mode_t>(list_[entry + rights_place]);
}

mode_t FileRights::ModeBefore() const { return Narrowed(S_IRUSR | S_IWUSR); }

/// The group and the others get no more than all have.
mode_t FileRights::Narrowed(mode_t mode) const {
  return (mode & ~static_cast<mode_t>(S_IRWXG | S_IRWXO)) | common_ << 3 | common_;
}

std::string FileRights::NarrowedList() const {
  std::string list = list_;
  for (std::size_t entry = head_size; entry + entry_size <= list.size(); entry += entry_size) {
    const char tag = list[entry + tag_place];
    if (tag == ACL_GROUP_OBJ || tag == ACL_OTHER)
      list[entry + rights_place] = static_cast<char>(common_);
  }
  return list;
}

void FileRights::GiveTo(int descriptor) const {
  for (const auto& [name, value] : attributes_)
    static_cast<void>(fsetxattr(descriptor, name.c_str(), value.data(), value.size(), 0));

  constexpr auto unchanged = static_cast<uid_t>(-1);
  struct stat fresh {};
  const bool same_owner = fchown(descriptor, owner_, group_) == 0;
  const bool same_group = same_owner || fchown(descriptor, unchanged, group_) == 0 ||
                          (fstat(descriptor, &fresh) == 0 && fresh.st_gid == group_);

  // In another group's file, its members and those of the old group have changed their places.
  mode_t mode = same_group && !has_list_ ? mode_ : Narrowed(mode_);
  if (!same_owner) mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  // The folder may have given the new file a list of its own, to which the mode would be a mask.
  static_cast<void>(fremovexattr(descriptor, list_name));
  static_cast<void>(fchmod(descriptor, mode));
  // Only the list widens what the mode gives, so that no more is given if the host refuses it.
  const std::string list = same_group ? list_ : NarrowedList();
  if (!list.empty())
    static_cast<void>(fsetxattr(descriptor, list_name, list.data(), list.size(), 0));
}

}  // namespace files
