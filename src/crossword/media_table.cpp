// SPDX-License-Identifier: MIT
#include "crossword/media_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "crossword/fields.h"
#include "crossword/settings_file.h"
#include "files/binary_file.h"
#include "files/folder_entries.h"

namespace kalvon {
namespace {

constexpr int pack_unit = 1000;  // Each file of a pack takes up whole units of so many bytes,
constexpr char padding = '0';    // the last of which is filled up with this.

using Buffer = std::array<char, std::size_t{64} * pack_unit>;

/// Takes off all up to the first "/", which goes too; whether there was one.
bool DropThroughSlash(std::string_view& text) {
  const std::size_t slash = text.find('/');
  if (slash == std::string_view::npos) return false;
  text.remove_prefix(slash + 1);
  return true;
}

std::int64_t RoundedUp(std::int64_t size) {
  return static_cast<std::int64_t>(std::ceil(static_cast<double>(size) / pack_unit)) * pack_unit;
}

/// Adds up what the files take whose records stand before a name.
std::int64_t SizeOfRecords(std::string_view records) {
  if (records.ends_with('/')) records.remove_suffix(1);
  std::int64_t offset = 0;
  while (DropThroughSlash(records)) {
    if (!DropThroughSlash(records)) break;
    const std::string_view size = records.substr(0, records.find('/'));
    offset = RoundedUp(offset + DecimalValue(size));
    records.remove_prefix(size.size());
  }
  return offset;
}

/// Position of the file's first byte, counted from 1: behind the padding of the file before it.
std::int64_t FindStart(const files::BinaryReader& pack, std::int64_t offset) {
  if (offset < 2) return 1;
  Buffer buffer;
  std::int64_t position = offset - 2;
  for (;;) {
    const std::string_view bytes = pack.Get(position, buffer);
    const std::size_t first = bytes.find_first_not_of(padding);
    if (first != std::string_view::npos) return position + static_cast<std::int64_t>(first);
    if (bytes.empty()) return position;
    position += static_cast<std::int64_t>(bytes.size());
  }
}

constexpr std::size_t longest_name = 255;  // Bytes; no file of the host has a longer one.

bool IsBare(std::string_view name) {
  return name.size() <= longest_name &&
         name.find_first_of(std::string_view("/\\:\0", 4)) == std::string_view::npos;
}

}  // namespace

std::optional<PackEntry> FindInTable(std::string_view table, std::string_view name) {
  const std::size_t found = table.find(name);
  if (found == std::string_view::npos) return std::nullopt;
  std::string_view record = table.substr(found);
  const bool has_size = DropThroughSlash(record);
  return PackEntry{.offset = SizeOfRecords(table.substr(0, found)),
                   .size = has_size ? DecimalValue(record.substr(0, record.find('/'))) : 0};
}

void CutOut(const std::string& pack_path, const PackEntry& entry, const std::string& target_path) {
  const files::BinaryWriter file(target_path);
  const files::BinaryReader pack(pack_path);
  Buffer buffer;
  std::int64_t position = FindStart(pack, entry.offset);
  for (std::int64_t left = entry.size; left > 0;) {
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(left, buffer.size()));
    const std::string_view bytes = pack.Get(position, std::span(buffer).first(wanted));
    if (bytes.empty()) break;
    file.Put(bytes);
    position += static_cast<std::int64_t>(bytes.size());
    left -= static_cast<std::int64_t>(bytes.size());
  }
}

const MediaKind* KindOfMedium(std::string_view name) {
  const std::string lower = files::LowerCase(name);
  const std::size_t dot = lower.rfind('.');
  if (!IsBare(name) || lower == settings_name || dot == std::string::npos) return nullptr;
  return FindMediaKind(std::string_view(lower).substr(dot + 1));
}

}  // namespace kalvon
