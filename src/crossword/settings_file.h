// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

namespace kalvon {

// The file beside the program that keeps the settings.

/// The name of the file.
inline constexpr const char* settings_name = "m_kalvon_ini.txt";

/// Its lines: the title, and the folder, script and keyboard layout, each as "name:value".
struct Settings {
  std::string title;
  std::string folder;
  std::string script;
  std::string layout;

  bool operator==(const Settings&) const = default;
};

/// Reads the settings in a folder, a path of the logic that ends in "\". From the first line on
/// that cannot be read, they are empty.
Settings ReadSettings(const std::string& folder);

/// Writes them. Fails as FileRewrite, and the older file stays.
void WriteSettings(const std::string& folder, const Settings& settings);

/// The value in a line.
std::string ValueOf(const std::string& line);

}  // namespace kalvon
