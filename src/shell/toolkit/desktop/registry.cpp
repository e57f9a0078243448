// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/registry.h"

#include <map>

#include "shell/toolkit/desktop/browser_host.h"

namespace toolkit {

namespace {

constexpr std::uint32_t classes_root = 0x80000000;

// The host's error numbers.
constexpr int success = 0;
constexpr int not_found = 2;
constexpr int invalid_handle = 6;
constexpr int more_data = 234;

/// The open keys by their handles.
std::map<std::uint32_t, RegistryValue> open_keys;

}  // namespace

int RegOpenKeyExA(std::uint32_t root, const std::string& key_path, std::uint32_t /*access_mask*/,
                  std::uint32_t& key) {
  if (root != classes_root) return not_found;
  const auto value = CurrentBrowserHost().Read(key_path);
  if (!value) return not_found;
  key = open_keys.empty() ? 1 : open_keys.rbegin()->first + 1;
  open_keys[key] = *value;
  return success;
}

int RegQueryValueExA(std::uint32_t key, const std::string& value_name, std::uint32_t& type,
                     std::string& buffer, std::uint32_t& length) {
  const auto found = open_keys.find(key);
  if (found == open_keys.end()) return invalid_handle;
  if (!value_name.empty()) return not_found;
  const std::string with_nul = found->second.data + '\0';
  type = found->second.type;
  const std::uint32_t room = length;
  length = static_cast<std::uint32_t>(with_nul.size());
  if (length > room) return more_data;
  buffer.replace(0, length, with_nul);
  return success;
}

int RegCloseKey(std::uint32_t key) { return open_keys.erase(key) == 1 ? success : invalid_handle; }

}  // namespace toolkit
