// SPDX-License-Identifier: MIT
#include "files/drives.h"

#include <algorithm>
#include <fstream>
#include <string_view>

namespace files {

namespace {

std::string mount_table = "/proc/self/mounts";

/// The mount table writes blanks, tabs, line ends and backslashes as "\" and three octal digits.
std::string WithoutEscapes(std::string_view text) {
  const auto octal = [](char digit) { return digit >= '0' && digit <= '7'; };
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view digits = text.substr(i + 1, 3);
    if (text[i] == '\\' && digits.size() == 3 && std::ranges::all_of(digits, octal)) {
      plain += static_cast<char>(std::stoi(std::string(digits), nullptr, 8));
      i += 3;
    } else {
      plain += text[i];
    }
  }
  return plain;
}

/// The mount points where a desktop or its user puts media, sorted.
std::vector<std::string> MediaMountPoints() {
  std::vector<std::string> points;
  std::ifstream table(mount_table);
  std::string line;
  while (std::getline(table, line)) {
    const std::size_t begin = line.find(' ') + 1;
    const std::string point =
        WithoutEscapes(std::string_view(line).substr(begin, line.find(' ', begin) - begin));
    const bool medium = point == "/mnt" || point.starts_with("/mnt/") ||
                        point.starts_with("/media/") || point.starts_with("/run/media/");
    if (medium && point.find('\\') == std::string::npos) points.push_back(point);
  }
  std::ranges::sort(points);
  points.erase(std::unique(points.begin(), points.end()), points.end());
  return points;
}

}  // namespace

void MountTable(const std::string& host_path) { mount_table = host_path; }

std::vector<Drive> Drives() {
  std::vector<Drive> drives{{'c', "/", "c: [/]"}};
  for (const std::string& point : MediaMountPoints()) {
    if (drives.back().letter == 'z') break;
    const char letter = static_cast<char>(drives.back().letter + 1);
    drives.push_back({letter, point, std::string{letter} + ": [" + point + "]"});
  }
  return drives;
}

}  // namespace files
