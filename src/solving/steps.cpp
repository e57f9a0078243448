// SPDX-License-Identifier: MIT
#include "solving/steps.h"

#include <utility>

#include "display/selected_word.h"
#include "document/crossword_state.h"
#include "document/facts.h"

namespace kalvon {

Step BeginStep(StepKind kind) { return {.kind = kind, .word = SelectedWord()}; }

void EndStep(Step step, bool goes_on) {
  if (step.changes.empty()) return;
  glavni.vest = {.news = News::made, .step = step.kind};
  if (glavni.dnevnik) glavni.dnevnik->Made(std::move(step), goes_on);
  UpdateFacts();
}

}  // namespace kalvon
