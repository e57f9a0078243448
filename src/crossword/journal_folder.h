// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "crossword/crossword.h"
#include "files/append_file.h"

namespace kalvon {

// The folder of the journals, a host path. The name of a journal says of which crossword it is, by
// its content and its place.

/// The first line of a journal, with the version of its form.
inline constexpr std::string_view journal_first_line = "kalvon journal 1\n";

/// Opens the journal of a crossword that lies at a place. If there is none, it is that of a
/// crossword of the same content that has left its place, else a new one. Fails as AppendFile and
/// MakeOwnFolder.
std::unique_ptr<files::AppendFile> OpenJournalFile(const std::string& folder,
                                                   const Crossword& crossword,
                                                   const std::string& place);

/// Removes the journals that nobody has used for a year, and the oldest ones beyond 64 MiB of them.
/// One that a program has open stays. `now` is in seconds since 1970.
void RemoveOldJournals(const std::string& folder, std::uint64_t now);

}  // namespace kalvon
