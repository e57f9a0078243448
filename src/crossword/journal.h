// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "crossword/crossword.h"
#include "crossword/history.h"
#include "crossword/journal_state.h"
#include "files/append_file.h"

namespace kalvon {

/// The history of a crossword, and its journal: a file that outlives a kill of the program with all
/// that the user did, and an end without a save. It lies in a folder of journals, and never touches
/// the files of the crossword.
///
/// Whoever changes a cell tells the journal. A journal that cannot be kept, or not any more, does
/// all the same in memory.
class Journal {
 public:
  /// Opens the journal of a crossword that has just been read, and puts letters into its cells that
  /// were there when the program was killed. `folder` is a host path. `now` is in seconds since
  /// 1970. The old journal of the same crossword must be gone: one program has it once.
  Journal(Crossword& crossword, const std::string& folder,
          std::uint64_t now = static_cast<std::uint64_t>(std::time(nullptr)));

  // What the opening found.

  /// Cells whose letters were put back.
  [[nodiscard]] std::size_t PutBack() const { return put_back_; }
  /// Steps that were not saved when the user left, and wait for Redo.
  [[nodiscard]] std::size_t Waiting() const { return state_.Waiting(); }

  [[nodiscard]] const History& Steps() const { return state_.Steps(); }
  /// Whether the user's letters differ from those in the files.
  [[nodiscard]] bool IsModified() const { return state_.Now() != state_.InFiles(); }
  /// Seconds that have gone into the crossword, with those of other days.
  [[nodiscard]] std::uint64_t Spent() const { return state_.Spent(); }

  /// Steps of the earlier work: those that waited when another was made. It is kept until it is
  /// saved, for a year at most.
  [[nodiscard]] std::size_t EarlierSteps() const { return state_.EarlierSteps(); }
  /// The one step that lays it over the crossword. One without changes would change nothing.
  [[nodiscard]] Step EarlierWork() const { return state_.EarlierWork(); }

  /// A step was made in the cells. One without changes is none. One that `goes_on` becomes a part
  /// of the last step, unless something has come between the two, a save say.
  void Made(Step step, bool goes_on = false);
  /// Takes the last step back in the cells, or makes the one again that was taken back last.
  /// Returns it, to be read before the next call; null if there is none.
  const Step* Undo(Crossword& crossword);
  const Step* Redo(Crossword& crossword);
  /// A save has written these installments.
  void Saved(const Crossword& crossword, const std::vector<int>& installments);
  /// More seconds have gone into the crossword.
  void Spend(std::uint64_t seconds);
  /// The user leaves the crossword. Without this, the program was killed.
  void End();

  /// The number of the error that keeps the journal from being kept, the first time that it is
  /// asked for after it arose; else 0. Error 70: another program has the crossword.
  int NewFailure() { return std::exchange(new_failure_, 0); }

 private:
  void Open(const Crossword& crossword, const std::string& folder, const std::string& place);
  std::size_t Replay(std::string_view journal);
  void Compact();
  bool Note(Record record);
  void SetFailure(int failure);

  JournalState state_;
  std::unique_ptr<files::AppendFile> file_;  ///< Null for one in memory.
  std::size_t put_back_ = 0;
  int failure_ = 0;
  int new_failure_ = 0;
};

}  // namespace kalvon
