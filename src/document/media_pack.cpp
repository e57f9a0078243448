// SPDX-License-Identifier: MIT
#include "document/media_pack.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/crossword_state.h"
#include "document/media_file.h"
#include "files/binary_file.h"
#include "multimedia/media_pane.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {

namespace {

constexpr int hourglass = 11;
constexpr int pack_unit = 1000;  // Each file of a pack takes up whole units of so many bytes,
constexpr char padding = '0';    // the last of which is filled up with this.

using Buffer = std::array<char, std::size_t{64} * pack_unit>;

/// What a pack's table says of a file: where its unit begins, counted from 0, and its size.
struct PackEntry {
  std::int64_t offset = 0;
  std::int64_t size = 0;
};

/// The installment in which the selected word begins, 0 if that cannot be told.
int InstallmentOfWord() {
  const bool down = glavni.nast_smer == 2;
  const int cell = down ? glavni.pret_y1 : glavni.pret_x1;
  const int cells = down ? glavni.nast_visina : glavni.nast_sirina;
  if (cells == 0 || glavni.nast_smer < 0 || glavni.nast_smer > 2) return 0;
  return static_cast<int>(std::ceil(static_cast<double>(cell) / cells));
}

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

std::optional<PackEntry> FindInTable(std::string_view table, std::string_view name) {
  const std::size_t found = table.find(name);
  if (found == std::string_view::npos) return std::nullopt;
  std::string_view record = table.substr(found);
  const bool has_size = DropThroughSlash(record);
  return PackEntry{.offset = SizeOfRecords(table.substr(0, found)),
                   .size = has_size ? DecimalValue(record.substr(0, record.find('/'))) : 0};
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

/// Copies what the pack holds of the file. A pack that is missing gives an empty file.
void CutOut(const std::string& pack_path, const PackEntry& entry) {
  const files::BinaryWriter file(glavni.app_staza + glavni.media_fajl);
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

void Extract() {
  if (!MayNameMedium(glavni.media_fajl)) return;
  const int installment = InstallmentOfWord();
  std::string pack_path;
  files::pass_over([&] { pack_path = InstallmentPath(installment, "qvd"); });
  std::string_view table;
  files::pass_over([&] { table = glavni.media_sadrzaj(installment); });
  const auto entry = FindInTable(table, glavni.media_fajl);
  if (entry) files::pass_over([&] { CutOut(pack_path, *entry); });
}

std::string TypeOf(std::string_view name) {
  name = name.substr(0, name.find_last_not_of(' ') + 1);
  return std::string(name.substr(name.size() - std::min<std::size_t>(name.size(), 3)));
}

}  // namespace

void izvuci_media() {
  obrisi_temp();
  toolkit::Screen::MousePointer(hourglass);
  Extract();
  // What is no medium in the program's folder is not looked at: the pane shows the clue alone.
  prikazi_media(MayNameMedium(glavni.media_fajl) ? TypeOf(glavni.media_fajl) : "");
  toolkit::Screen::MousePointer(0);
}

}  // namespace kalvon
