// SPDX-License-Identifier: MIT
#include "solving/steps.h"

#include <utility>

#include "display/selected_word.h"
#include "document/crossword_state.h"
#include "document/facts.h"

namespace kalvon {

namespace {

/// Whether a step of this kind needs the solution.
bool AsksSolution(StepKind kind) {
  return kind == StepKind::word_solved || kind == StepKind::puzzle_solved ||
         kind == StepKind::wrong_erased;
}

}  // namespace

Step BeginStep(StepKind kind) { return {.kind = kind, .word = SelectedWord()}; }

void EndStep(Step step, bool goes_on) {
  if (step.changes.empty()) {
    if (AsksSolution(step.kind) && glavni.slova.unknown > 0)
      glavni.vest = {.news = News::no_solution};
    return;
  }
  glavni.vest = {.news = News::made, .step = step.kind};
  if (glavni.dnevnik) glavni.dnevnik->Made(std::move(step), goes_on);
  UpdateFacts();
}

}  // namespace kalvon
