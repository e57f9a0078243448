// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace toolkit {

// The registry of the period, to read in. Only what the system's web browser is stands there.
// Results are 0 on success, otherwise the host's own error numbers.

/// Opens a key below one of the root keys, for the access that the mask names.
int RegOpenKeyExA(std::uint32_t root, const std::string& key_path, std::uint32_t access_mask,
                  std::uint32_t& key);

/// Copies a value, by its name or the default one by the empty name, into the buffer with a final
/// NUL. `length` is the room in bytes, and on success what was taken of it.
int RegQueryValueExA(std::uint32_t key, const std::string& value_name, std::uint32_t& type,
                     std::string& buffer, std::uint32_t& length);

/// Closes a key.
int RegCloseKey(std::uint32_t key);

}  // namespace toolkit
