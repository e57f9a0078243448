// SPDX-License-Identifier: MIT
#include "document/media_file.h"

#include <algorithm>
#include <string>

#include "document/crossword_state.h"
#include "files/folder_entries.h"

namespace kalvon {

namespace {

constexpr std::string_view media_ends[] = {".bmp", ".txt", ".wav", ".mid", ".avi"};
constexpr auto settings_file = "m_kalvon_ini.txt";
constexpr std::size_t longest_name = 255;  // Bytes; no file of the host has a longer one.

bool IsBare(std::string_view name) {
  return name.size() <= longest_name &&
         name.find_first_of(std::string_view("/\\:\0", 4)) == std::string_view::npos;
}

}  // namespace

bool MayNameMedium(std::string_view name) {
  if (!IsBare(name)) return false;
  const std::string lower = files::LowerCase(name);
  return lower != settings_file && std::ranges::any_of(media_ends, [&](std::string_view end) {
           return lower.ends_with(end);
         });
}

bool IsTemporaryMedium(std::string_view path) {
  return path.starts_with(glavni.app_staza) && MayNameMedium(path.substr(glavni.app_staza.size()));
}

}  // namespace kalvon
