// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "crossword/step.h"

namespace kalvon {

// Records: what a journal is a row of. In the file each has its length and a checksum before it, so
// that one of which the disk has only a part is known as such.

enum class RecordKind : std::uint8_t {
  opened = 1,  ///< The crossword of `place` was loaded at `time`. `changes`: what the letters in
               ///< its files have become since the journal last heard of them.
  step,        ///< `step` was made.
  back,        ///< The last step was taken back.
  forward,     ///< The step taken back last was made again.
  saved,       ///< `changes`: what the letters in the files have become.
  ended,       ///< The user left the crossword.
  spent,       ///< `number` more seconds have gone into it.
  // With these two, a journal that is written anew says what the others have led to.
  undone_step,  ///< Behind all others comes `step`, which is taken back.
  earlier,      ///< Earlier work of `number` steps as of `time`: `changes`, `waiting`, `laid`.
  more          ///< `changes` have become a part of the step that was made just before.
};

/// The position in a history that none has.
inline constexpr std::size_t no_position = static_cast<std::size_t>(-1);

/// The steps of a history from one position to another; without an end beyond its beginning, none.
struct StepRange {
  std::size_t from = no_position;
  std::size_t to = 0;

  bool operator==(const StepRange&) const = default;
};

/// A record. What its kind does not name stays empty.
struct Record {
  RecordKind kind = RecordKind::opened;
  std::uint64_t time = 0;  ///< Seconds since 1970.
  std::uint64_t number = 0;
  StepRange waiting = {};
  std::size_t laid = no_position;
  std::string place = {};
  Step step = {};  ///< Its `changes` also serve the kinds that have no step.

  bool operator==(const Record&) const = default;
};

/// For how many seconds is kept what nobody asks for.
inline constexpr std::uint64_t journal_lifetime = std::uint64_t{365} * 24 * 60 * 60;

/// The bytes of a record.
std::string Encode(const Record& record);

/// Takes a record from the front of bytes. None, and nothing taken, if they do not begin with a
/// whole one of a known kind whose letters a cell can hold.
std::optional<Record> TakeRecord(std::string_view& bytes);

}  // namespace kalvon
