// SPDX-License-Identifier: MIT
#include "crossword/pack_making.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kalvon {
namespace {

constexpr std::size_t unit = 1000;
constexpr std::size_t least_padding = 3;  // By which a reader knows where the next file begins.
constexpr char padding = '0';

/// The bytes of a file as they are packed: they do not begin like padding and leave room for it.
std::string Packable(const std::string& name, std::string bytes) {
  const bool text = name.ends_with(".txt");
  if (bytes.starts_with(padding)) bytes.insert(0, 1, ' ');
  while (bytes.size() % unit == 0 || bytes.size() % unit > unit - least_padding)
    bytes += text ? ' ' : '\0';
  return bytes;
}

}  // namespace

MediaPack MakePack(const std::map<std::string, std::string>& media) {
  // A name is found at its first place in the table, so none may be a part of an earlier one.
  std::vector<std::pair<std::string, std::string>> files(media.begin(), media.end());
  std::ranges::stable_sort(files, {}, [](const auto& file) { return file.first.size(); });
  MediaPack pack;
  for (const auto& [name, bytes] : files) {
    const std::string packable = Packable(name, bytes);
    pack.table.append("/").append(name).append("/").append(std::to_string(packable.size()));
    pack.bytes.append(packable).append(unit - packable.size() % unit, padding);
  }
  return pack;
}

}  // namespace kalvon
