// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace kalvon {

/// A media pack and the table that lists its files.
struct MediaPack {
  std::string table;
  std::string bytes;
};

/// Packs files by their names, which FindInTable and CutOut then find. A file whose bytes would
/// mislead them gets bytes that its kind passes over: blanks for a text, zeros at the end of any
/// other.
MediaPack MakePack(const std::map<std::string, std::string>& media);

}  // namespace kalvon
