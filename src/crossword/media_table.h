// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "crossword/media_kinds.h"

namespace kalvon {

// The media pack of an installment: files in whole units of 1000 bytes, one behind the other, and
// the table that lists them, the first line of the crossword file.

/// What a pack's table says of a file: where its unit begins, counted from 0, and its size. Bytes.
struct PackEntry {
  std::int64_t offset = 0;
  std::int64_t size = 0;
};

/// The entry of a name, by its first occurrence in the table; none if it isn't there.
std::optional<PackEntry> FindInTable(std::string_view table, std::string_view name);

/// Copies a file out of a pack, as far as the pack goes; a pack that is missing gives an empty
/// file. Errors as for BinaryReader and BinaryWriter.
void CutOut(const std::string& pack_path, const PackEntry& entry, const std::string& target_path);

// The file of a medium lies in the program's folder for as long as it is on show. Its name comes
// from a crossword that a stranger wrote, so not every name may be written and deleted there.

/// The kind of the medium that a name may stand for: null unless it is a bare file name that ends
/// as a medium's does, and not the settings file's. Nothing else is ever written: the host reads
/// files of other names where a program lies.
const MediaKind* KindOfMedium(std::string_view name);

}  // namespace kalvon
