// SPDX-License-Identifier: MIT
// A medium's name, a media table and its pack: what is cut out is no more than the table says.
#include "crossword/media_table.h"
#include "crossword/media_wave.h"
#include "files/run_time_error.h"
#include "fuzz_folder.h"

using namespace kalvon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string_view> parts = Parts(Text(data, size), 3);
  if (parts.size() < 3) return 0;
  const std::string name(parts[0]);
  const auto entry = FindInTable(parts[1], name);
  const MediaKind* kind = KindOfMedium(name);
  if (!entry || kind == nullptr) return 0;
  const FuzzFolder folder;
  const std::string pack = folder.Write("proba.qvd", parts[2]);
  files::pass_over([&] {
    const std::string medium = folder.Path() + name;
    CutOut(pack, *entry, medium);
    const auto cut = static_cast<std::int64_t>(std::filesystem::file_size(files::HostPath(medium)));
    Require(cut <= std::max<std::int64_t>(entry->size, 0));
    CutOffTail(medium);
  });
  return 0;
}
