// SPDX-License-Identifier: MIT
#include "exchange/zipped.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <memory>

#include "exchange/remark.h"

namespace kalvon::exchange {
namespace {

using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;
using Entry = std::unique_ptr<zip_file_t, decltype(&zip_fclose)>;

Archive Open(std::string_view bytes) {
  zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
  zip_t* archive = source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, nullptr);
  if (archive == nullptr) {
    zip_source_free(source);
    throw ConversionError(Matter::damaged, "zip");
  }
  return {archive, &zip_discard};
}

/// The content of a file, at most one byte more than the limit. Empty if it cannot be read.
std::string Content(zip_t* archive, zip_uint64_t index, std::size_t most) {
  const Entry entry(zip_fopen_index(archive, index, 0), &zip_fclose);
  std::string content;
  if (!entry) return content;
  std::array<char, 65536> part{};
  while (content.size() <= most) {
    const zip_int64_t got =
        zip_fread(entry.get(), part.data(), std::min(part.size(), most + 1 - content.size()));
    if (got < 0) return {};
    if (got == 0) break;
    content.append(part.data(), static_cast<std::size_t>(got));
  }
  return content;
}

}  // namespace

bool IsZip(std::string_view bytes) { return bytes.starts_with("PK\x03\x04"); }

std::string Unzip(std::string_view bytes, std::size_t most, bool (*fits)(std::string_view)) {
  if (bytes.size() > most) throw ConversionError(Matter::too_long);
  const Archive archive = Open(bytes);
  const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
  for (zip_int64_t index = 0; index < count; ++index) {
    std::string content = Content(archive.get(), static_cast<zip_uint64_t>(index), most);
    if (content.size() > most) throw ConversionError(Matter::too_long);
    if (fits(content)) return content;
    most -= content.size();
  }
  throw ConversionError(Matter::unknown_format);
}

}  // namespace kalvon::exchange
