// SPDX-License-Identifier: MIT
#include "crossword/history.h"

#include <algorithm>
#include <utility>

namespace kalvon {

namespace {

constexpr std::size_t most_changes = 1'000'000;

}  // namespace

void History::Append(Step step) {
  changes_ += step.changes.size();
  steps_.push_back(std::move(step));
  while (changes_ > most_changes && steps_.size() > 1 && made_ > 0) {
    changes_ -= steps_.front().changes.size();
    steps_.pop_front();
    --made_;
    ++forgotten_;
  }
}

void History::Add(Step step) {
  while (steps_.size() > made_) {
    changes_ -= steps_.back().changes.size();
    steps_.pop_back();
  }
  Append(std::move(step));
  ++made_;
}

void History::Extend(const Changes& changes) {
  Changes& joined = steps_[made_ - 1].changes;
  changes_ -= joined.size();
  for (const LetterChange& change : changes) {
    const auto first = std::ranges::find(joined, change.cell, &LetterChange::cell);
    if (first == joined.end())
      joined.push_back(change);
    else if (first->before == change.after)
      joined.erase(first);
    else
      first->after = change.after;
  }
  changes_ += joined.size();
  if (!joined.empty()) return;
  steps_.pop_back();
  --made_;
}

void History::AddUndone(Step step) { Append(std::move(step)); }

const Step* History::LastMade() const { return made_ == 0 ? nullptr : &steps_[made_ - 1]; }

const Step* History::LastUndone() const {
  return made_ == steps_.size() ? nullptr : &steps_[made_];
}

void History::Back() { --made_; }

void History::Forward() { ++made_; }

}  // namespace kalvon
