// SPDX-License-Identifier: MIT
#include "crossword/journal.h"

#include <optional>

#include "crossword/identity.h"
#include "crossword/installments.h"
#include "crossword/journal_folder.h"
#include "files/file_rewrite.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace kalvon {

namespace {

/// Records that are always let stand, before a journal is written anew.
constexpr std::size_t few_records = 64;

}  // namespace

Journal::Journal(Crossword& crossword, const std::string& folder, std::uint64_t now)
    : state_(crossword) {
  const UserLetters loaded(crossword);
  Record opened{.time = now, .place = PlaceOf(crossword)};
  if (!opened.place.empty()) Open(crossword, folder, opened.place);
  opened.step.changes = state_.InFiles().To(loaded);
  Note(std::move(opened));

  const Step back{.kind = StepKind::earlier_work, .changes = loaded.To(state_.Now())};
  put_back_ = back.changes.size();
  Apply(crossword, back);
}

void Journal::Open(const Crossword& crossword, const std::string& folder,
                   const std::string& place) {
  const int failure = files::pass_over([&] {
    file_ = OpenJournalFile(folder, crossword, place);
    if (Replay(file_->Bytes()) > few_records + 2 * (Steps().End() - Steps().First())) Compact();
  });
  if (failure != 0) file_.reset();
  SetFailure(failure);
}

/// Goes through all records, and returns how many there are. What does not follow from what stands
/// before it, as the rest of a record that was being written, is cut off.
std::size_t Journal::Replay(std::string_view journal) {
  std::string_view rest = journal;
  if (!rest.starts_with(journal_first_line)) {
    // Another line is not ours, or of another version.
    if (!journal_first_line.starts_with(rest))
      throw files::RuntimeError(files::error::path_file_access);
    file_->Cut(0);
    file_->Append(journal_first_line);
    return 0;
  }
  rest.remove_prefix(journal_first_line.size());
  std::size_t records = 0;
  std::size_t good = journal.size() - rest.size();
  for (std::optional<Record> record; (record = TakeRecord(rest)); ++records) {
    if (!state_.Apply(std::move(*record))) break;
    good = journal.size() - rest.size();
  }
  file_->Cut(good);
  return records;
}

/// Writes the journal anew with what it has led to. If that fails, it stays as it is.
void Journal::Compact() {
  const std::string path = file_->HostPath();
  const int failure = files::pass_over([&] {
    const std::string name = files::LogicPath(path);
    files::FileRewrite rewrite(name, std::string(FileName(name)) + '~');
    rewrite.PrintLine(journal_first_line, "");
    for (const Record& record : state_.Records()) rewrite.PrintLine(Encode(record), "");
    rewrite.Commit();
  });
  if (failure == 0) file_ = std::make_unique<files::AppendFile>(path);
}

void Journal::Made(Step step, bool goes_on) {
  if (step.changes.empty()) return;
  const bool joins = goes_on && state_.IsStepOpen();
  Note({.kind = joins ? RecordKind::more : RecordKind::step, .step = std::move(step)});
}

const Step* Journal::Undo(Crossword& crossword) {
  const Step* step = Steps().LastMade();
  if (step == nullptr) return nullptr;
  const Step inverse = Inverse(*step);
  if (!Fits(crossword, inverse) || !Note({.kind = RecordKind::back})) return nullptr;
  Apply(crossword, inverse);
  return step;
}

const Step* Journal::Redo(Crossword& crossword) {
  const Step* step = Steps().LastUndone();
  if (step == nullptr || !Fits(crossword, *step) || !Note({.kind = RecordKind::forward}))
    return nullptr;
  Apply(crossword, *step);
  return step;
}

void Journal::Saved(const Crossword& crossword, const std::vector<int>& installments) {
  Note(state_.Saving(crossword, installments));
}

void Journal::Spend(std::uint64_t seconds) { Note({.kind = RecordKind::spent, .number = seconds}); }

void Journal::End() { Note({.kind = RecordKind::ended}); }

/// Whether the record follows.
bool Journal::Note(Record record) {
  const std::string bytes = file_ ? Encode(record) : std::string();
  if (!state_.Apply(std::move(record))) return false;
  if (file_) SetFailure(file_->Append(bytes));
  return true;
}

void Journal::SetFailure(int failure) {
  if (failure != failure_ && failure != 0) new_failure_ = failure;
  failure_ = failure;
}

}  // namespace kalvon
