// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "crossword/crossword.h"
#include "crossword/history.h"
#include "crossword/journal_records.h"
#include "crossword/user_letters.h"

namespace kalvon {

/// What the records of a journal have led to. Reading a journal and going on with it is the same:
/// one record after the other is applied.
///
/// With each load it is decided anew where the user stands. After a kill the letters are put back
/// as they were, over those of the files, and the history goes on. After an end the files count:
/// the history goes back to the position that has their letters, and its steps behind that wait to
/// be made again. If it has none, because steps were made after others had been taken back, because
/// a part of the files was saved, or because others have changed them, what can be brought back is
/// one single step. Steps that still wait when another one is made move into the earlier work.
class JournalState {
 public:
  /// Nothing is known yet of the crossword but which cells take letters.
  explicit JournalState(const Crossword& crossword);

  /// Goes on by a record. False, and nothing has changed, if it cannot follow here.
  bool Apply(Record record);

  /// The few records that lead here from the beginning.
  [[nodiscard]] std::vector<Record> Records() const;
  /// The record that says that a save has written these installments.
  [[nodiscard]] Record Saving(const Crossword& crossword,
                              const std::vector<int>& installments) const;

  /// The letters in the files, and those that the user has put into the cells since.
  [[nodiscard]] const UserLetters& InFiles() const { return in_files_; }
  [[nodiscard]] const UserLetters& Now() const { return now_; }
  [[nodiscard]] const History& Steps() const { return history_; }
  /// Whether the last step can become more: nothing but time has passed since it was made.
  [[nodiscard]] bool IsStepOpen() const { return step_is_open_; }
  /// Steps that were made, not saved, and wait to be made again.
  [[nodiscard]] std::size_t Waiting() const;
  /// Steps of the earlier work, and the one step that lays it over the present letters.
  [[nodiscard]] std::size_t EarlierSteps() const { return earlier_.steps; }
  [[nodiscard]] Step EarlierWork() const;
  [[nodiscard]] std::uint64_t Spent() const { return spent_; }

 private:
  /// Steps that waited when another was made: what they have made of the cells.
  struct Earlier {
    std::size_t steps = 0;
    std::uint64_t since = 0;
    std::size_t laid = no_position;  ///< From which position on the history has it all.
    std::map<GridCell, std::string> letters;
  };

  bool Open(Record opened);
  void GoOn(const Changes& by_others, bool killed);
  void StartAnew(Changes unsaved, bool made);
  bool Follow(Record record);
  bool AddStep(Step step);
  bool ExtendStep(const Changes& changes);
  void NoteEarlierWork();
  bool Save(const Changes& changes);
  bool TakeEarlier(const Record& record);
  void KeepWaiting();
  void GoTo(std::size_t position);
  [[nodiscard]] std::optional<std::size_t> PositionOf(const UserLetters& wanted) const;

  UserLetters in_files_;
  UserLetters now_;
  History history_;
  StepRange waiting_;
  Earlier earlier_;
  std::uint64_t spent_ = 0;
  std::uint64_t time_ = 0;  ///< Of the last load.
  std::string place_;
  bool ended_ = true;
  bool step_is_open_ = false;
};

}  // namespace kalvon
