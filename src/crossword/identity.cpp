// SPDX-License-Identifier: MIT
#include "crossword/identity.h"

#include <filesystem>

#include "crossword/cell.h"
#include "crossword/hash.h"
#include "crossword/reading.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace kalvon {

std::uint64_t ContentOf(const Crossword& crossword) {
  std::uint64_t hash = empty_hash;
  const auto add = [&](std::string_view text, std::string_view more = "") {
    hash = Hash("\n", Hash(more, Hash(text, hash)));
  };
  for (const int number : {+crossword.ukr_sirina, +crossword.ukr_visina, +crossword.nast_sirina,
                           +crossword.nast_visina, +crossword.nast_smer})
    add(std::to_string(number));
  for (int y = 1; y <= crossword.ukr_visina; ++y) {
    for (int x = 1; x <= crossword.ukr_sirina; ++x) {
      const std::string_view cell = crossword.ukr_polja(x, y, 1);
      add(cell.substr(0, 1), FieldsIn(cell));
      add(crossword.ukr_polja(x, y, 2));
    }
  }
  return hash;
}

std::string PlaceOf(const Crossword& crossword) {
  std::string place;
  if (crossword.nast_ucitan == Table<Int16, 1>()) return place;
  for (int i = 1; i <= crossword.nast_zadnji && place.empty(); ++i) place = crossword.nast_staza(i);
  files::pass_over([&] {
    place = files::HostPath(place);
    std::error_code missing;
    const std::filesystem::path without_links = std::filesystem::canonical(place, missing);
    if (!missing) place = without_links.string();
  });
  return place;
}

bool LiesAt(const std::string& place, std::uint64_t content) {
  if (!files::Exists(place)) return false;
  bool lies = false;
  const int failure = files::pass_over(
      [&] { lies = ContentOf(ReadCrossword(files::LogicPath(place))) == content; });
  return lies || failure == files::error::device_io || failure == files::error::path_file_access ||
         failure == files::error::path_not_found;
}

}  // namespace kalvon
