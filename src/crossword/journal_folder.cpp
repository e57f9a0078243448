// SPDX-License-Identifier: MIT
#include "crossword/journal_folder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "crossword/hash.h"
#include "crossword/identity.h"
#include "crossword/journal_records.h"
#include "files/descriptor.h"
#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "files/state_folder.h"

namespace kalvon {

namespace {

constexpr std::string_view mark = ".journal";
constexpr std::uintmax_t most_bytes = std::uintmax_t{64} * 1024 * 1024;

struct JournalFile {
  std::string path;
  std::string name;
  std::filesystem::file_time_type used;
  std::uintmax_t size = 0;
};

/// All journals, the one used last first. Fails as an opened file if that cannot be told.
std::vector<JournalFile> JournalsIn(const std::string& folder) {
  std::vector<JournalFile> journals;
  std::error_code failure;
  std::filesystem::directory_iterator entry(folder, failure);
  for (; entry != std::filesystem::directory_iterator(); entry.increment(failure)) {
    const std::filesystem::path& path = entry->path();
    std::error_code gone;
    JournalFile file{path.string(), path.filename().string(), entry->last_write_time(gone)};
    if (!gone) file.size = entry->file_size(gone);
    if (!gone && file.name.find(mark) != std::string::npos) journals.push_back(std::move(file));
  }
  if (failure) throw files::RuntimeError(files::OpenFailure(failure.value()));
  std::ranges::sort(journals, std::ranges::greater(), &JournalFile::used);
  return journals;
}

std::string Digits(std::uint64_t number) {
  std::string digits;
  for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[number >> shift & 0xF];
  return digits;
}

/// The place at which the crossword of a journal was loaded last.
std::string PlaceIn(std::string_view journal) {
  std::string place;
  journal.remove_prefix(std::min(journal.size(), journal_first_line.size()));
  while (std::optional<Record> record = TakeRecord(journal))
    if (record->kind == RecordKind::opened) place = std::move(record->place);
  return place;
}

/// The journal of a crossword of this content that no longer lies where it was. Fails if that
/// cannot be told: with a new journal beside it, it would never be found again.
std::unique_ptr<files::AppendFile> FindMoved(const std::string& folder, std::uint64_t content) {
  for (const JournalFile& journal : JournalsIn(folder)) {
    if (!journal.name.starts_with(Digits(content)) || !journal.name.ends_with(mark)) continue;
    std::unique_ptr<files::AppendFile> file;
    const int failure =
        files::pass_over([&] { file = std::make_unique<files::AppendFile>(journal.path); });
    // It is another program's, for which the crossword has not left its place, or another user's.
    if (failure == files::error::permission_denied) continue;
    if (failure != 0) throw files::RuntimeError(failure);
    if (!LiesAt(PlaceIn(file->Bytes()), content)) return file;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<files::AppendFile> OpenJournalFile(const std::string& folder,
                                                   const Crossword& crossword,
                                                   const std::string& place) {
  files::MakeOwnFolder(folder);
  const std::uint64_t content = ContentOf(crossword);
  const std::string path =
      files::Below(folder, Digits(content) + '-' + Digits(Hash(place)).append(mark));
  if (!files::Exists(path)) {
    if (std::unique_ptr<files::AppendFile> moved = FindMoved(folder, content)) {
      moved->Rename(path);
      return moved;
    }
  }
  return std::make_unique<files::AppendFile>(path);
}

void RemoveOldJournals(const std::string& folder, std::uint64_t now) {
  const std::chrono::sys_seconds oldest(
      std::chrono::seconds(now - std::min(now, journal_lifetime)));
  std::uintmax_t bytes = 0;
  for (const JournalFile& journal : JournalsIn(folder)) {
    bytes += journal.size;
    if (std::chrono::file_clock::to_sys(journal.used) >= oldest && bytes <= most_bytes) continue;
    files::pass_over([&] {
      const files::AppendFile locked(journal.path);
      std::error_code stays;
      std::filesystem::remove(journal.path, stays);
    });
  }
}

}  // namespace kalvon
