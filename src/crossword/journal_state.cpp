// SPDX-License-Identifier: MIT
#include "crossword/journal_state.h"

#include <algorithm>
#include <utility>

#include "crossword/installments.h"

namespace kalvon {

namespace {

/// Makes changes if they fit; whether they do.
bool Make(UserLetters& letters, const Changes& changes) {
  const bool fit = letters.Fit(changes);
  if (fit) letters.Lay(changes);
  return fit;
}

}  // namespace

JournalState::JournalState(const Crossword& crossword)
    : in_files_(UserLetters(crossword).Erased()), now_(in_files_) {}

bool JournalState::Apply(Record record) {
  const RecordKind kind = record.kind;
  if (!Follow(std::move(record))) return false;
  if (kind != RecordKind::more && kind != RecordKind::spent)
    step_is_open_ = kind == RecordKind::step;
  return true;
}

bool JournalState::Follow(Record record) {
  switch (record.kind) {
    case RecordKind::opened:
      return Open(std::move(record));
    case RecordKind::step:
      return AddStep(std::move(record.step));
    case RecordKind::more:
      return ExtendStep(record.step.changes);
    case RecordKind::back:
      if (history_.LastMade() == nullptr || !Make(now_, Inverse(*history_.LastMade()).changes))
        return false;
      history_.Back();
      return true;
    case RecordKind::forward:
      if (history_.LastUndone() == nullptr || !Make(now_, history_.LastUndone()->changes))
        return false;
      history_.Forward();
      return true;
    case RecordKind::saved:
      return Save(record.step.changes);
    case RecordKind::ended:
      return ended_ = true;
    case RecordKind::spent:
      spent_ += record.number;
      return true;
    case RecordKind::undone_step:
      if (!now_.Take(record.step.changes)) return false;
      history_.AddUndone(std::move(record.step));
      return true;
    case RecordKind::earlier:
      return TakeEarlier(record);
  }
  return false;
}

bool JournalState::Open(Record opened) {
  if (!Make(in_files_, opened.step.changes)) return false;
  const bool killed = !std::exchange(ended_, false);
  time_ = opened.time;
  place_ = std::move(opened.place);
  if (time_ > earlier_.since + journal_lifetime) earlier_ = {};

  // Nearly always the user stands where he left.
  const bool as_left = killed ? opened.step.changes.empty() : now_ == in_files_;
  if (!as_left) GoOn(opened.step.changes, killed);
  return true;
}

/// Goes on with other letters than those of the last time, where others have made these changes.
void JournalState::GoOn(const Changes& by_others, bool killed) {
  // What others have not touched is to be as it was, the rest as the files say.
  UserLetters wanted = now_;
  wanted.Lay(by_others);
  const UserLetters& shown = killed ? wanted : in_files_;
  if (const std::optional<std::size_t> position = PositionOf(shown)) {
    if (!killed && *position < history_.Made()) {
      waiting_.from = std::min(waiting_.from, *position);
      waiting_.to = std::max(waiting_.to, history_.Made());
    }
    GoTo(*position);
  } else {
    StartAnew(in_files_.To(wanted), killed);
  }
  now_ = shown;
}

/// Only one step is left, which is made or waits.
void JournalState::StartAnew(Changes unsaved, bool made) {
  KeepWaiting();
  history_ = {};
  earlier_.laid = no_position;
  if (unsaved.empty()) return;
  history_.AddUndone({.kind = StepKind::earlier_work, .changes = std::move(unsaved)});
  if (made)
    history_.Forward();
  else
    waiting_ = {0, 1};
}

bool JournalState::AddStep(Step step) {
  if (!now_.Fit(step.changes)) return false;
  KeepWaiting();
  now_.Lay(step.changes);
  if (earlier_.laid > history_.Made()) earlier_.laid = no_position;
  history_.Add(std::move(step));
  NoteEarlierWork();
  return true;
}

bool JournalState::ExtendStep(const Changes& changes) {
  if (!step_is_open_ || !now_.Fit(changes)) return false;
  now_.Lay(changes);
  const std::size_t made = history_.Made();
  if (earlier_.laid == made) earlier_.laid = no_position;
  history_.Extend(changes);
  step_is_open_ = history_.Made() == made;
  NoteEarlierWork();
  return true;
}

/// Whether the history has all of the earlier work at last.
void JournalState::NoteEarlierWork() {
  if (earlier_.laid == no_position && EarlierWork().changes.empty())
    earlier_.laid = history_.Made();
}

bool JournalState::Save(const Changes& changes) {
  if (!Make(in_files_, changes)) return false;
  if (in_files_ != now_) return true;
  waiting_.from = std::max(waiting_.from, history_.Made());
  if (Waiting() == 0) waiting_ = {};
  if (earlier_.laid <= history_.Made()) earlier_ = {};
  return true;
}

bool JournalState::TakeEarlier(const Record& record) {
  if (!now_.Take(record.step.changes) || record.waiting.to > history_.End()) return false;
  waiting_ = record.waiting;
  earlier_ = {record.number, record.time, record.laid, {}};
  for (const LetterChange& change : record.step.changes)
    earlier_.letters[change.cell] = change.after;
  return true;
}

/// Only what the steps that wait change altogether is kept, and not each of them.
void JournalState::KeepWaiting() {
  const std::size_t steps = Waiting();
  if (steps > 0) {
    UserLetters letters = now_;
    std::size_t position = history_.Made();
    const auto walk = [&](std::size_t end) {
      for (; position < end; ++position) letters.Lay(history_.At(position).changes);
    };
    walk(waiting_.to - steps);
    const UserLetters before = letters;
    walk(waiting_.to);
    const Changes changes = before.To(letters);
    for (const LetterChange& change : changes) earlier_.letters[change.cell] = change.after;
    earlier_.steps += steps;
    earlier_.since = time_;
    earlier_.laid = no_position;
  }
  waiting_ = {};
}

void JournalState::GoTo(std::size_t position) {
  while (history_.Made() > position) history_.Back();
  while (history_.Made() < position) history_.Forward();
}

/// The position in the history that has these letters, at best one that is not behind the present.
std::optional<std::size_t> JournalState::PositionOf(const UserLetters& wanted) const {
  UserLetters letters = now_;
  std::size_t wrong = letters.To(wanted).size();
  std::size_t position = history_.Made();
  const auto walk = [&](const Changes& changes) {
    for (const LetterChange& change : changes) {
      const std::string& right = *wanted.At(change.cell);
      if (*letters.At(change.cell) != right) --wrong;
      if (change.after != right) ++wrong;
      letters.Lay(change);
    }
  };
  while (wrong > 0 && position > history_.First()) walk(Inverse(history_.At(--position)).changes);
  while (wrong > 0 && position < history_.End()) walk(history_.At(position++).changes);
  return wrong == 0 ? std::optional(position) : std::nullopt;
}

std::size_t JournalState::Waiting() const {
  const std::size_t first = std::max(waiting_.from, history_.Made());
  return waiting_.to - std::min(first, waiting_.to);
}

Step JournalState::EarlierWork() const {
  Step step{.kind = StepKind::earlier_work};
  for (const auto& [cell, letters] : earlier_.letters)
    if (*now_.At(cell) != letters) step.changes.push_back({cell, *now_.At(cell), letters});
  return step;
}

std::vector<Record> JournalState::Records() const {
  UserLetters first = now_;
  for (std::size_t position = history_.Made(); position > history_.First();)
    first.Lay(Inverse(history_.At(--position)).changes);

  std::vector<Record> records = {
      {.kind = RecordKind::opened,
       .time = time_,
       .place = place_,
       .step = {.changes = first.Erased().To(first)}},
      {.kind = RecordKind::saved, .step = {.changes = first.To(in_files_)}}};
  for (std::size_t position = history_.First(); position < history_.End(); ++position) {
    const bool made = position < history_.Made();
    records.push_back(
        {.kind = made ? RecordKind::step : RecordKind::undone_step, .step = history_.At(position)});
  }
  records.push_back({.kind = RecordKind::spent, .number = spent_});

  Changes earlier;
  for (const auto& [cell, letters] : earlier_.letters) earlier.push_back({cell, "", letters});
  // A history that is written anew has forgotten nothing.
  const auto moved = [&](std::size_t position) {
    return position == no_position ? position : position - std::min(position, history_.First());
  };
  records.push_back({.kind = RecordKind::earlier,
                     .time = earlier_.since,
                     .number = earlier_.steps,
                     .waiting = {moved(waiting_.from), moved(waiting_.to)},
                     .laid = moved(earlier_.laid),
                     .step = {.changes = std::move(earlier)}});
  if (ended_) records.push_back({.kind = RecordKind::ended});
  return records;
}

Record JournalState::Saving(const Crossword& crossword,
                            const std::vector<int>& installments) const {
  Record saved{.kind = RecordKind::saved};
  for (const int installment : installments) {
    CellWalk walk(crossword, installment);
    for (int left = crossword.nast_polja(installment); left > 0; --left) {
      walk.Next();
      const GridCell cell = {walk.x(), walk.y()};
      const std::string* letters = now_.At(cell);
      if (letters != nullptr && *letters != *in_files_.At(cell))
        saved.step.changes.push_back({cell, *in_files_.At(cell), *letters});
    }
  }
  return saved;
}

}  // namespace kalvon
