// SPDX-License-Identifier: MIT
#include "solving/undo.h"

#include "display/grid_view.h"
#include "display/selected_word.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "document/facts.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

/// Shows the place where a step was made first.
void ShowStep(const Step& step, News news) {
  crtaj_ukrstenicu();
  oznaci_rec(0);
  SelectWord(step.word);
  glavni.vest = {.news = news, .step = step.kind};
  UpdateFacts();
}

}  // namespace

bool CanUndo() {
  return !glavni.otkucano.empty() ||
         (glavni.dnevnik && glavni.dnevnik->Steps().LastMade() != nullptr);
}

bool CanRedo() { return glavni.dnevnik && glavni.dnevnik->Steps().LastUndone() != nullptr; }

std::size_t EarlierSteps() { return glavni.dnevnik ? glavni.dnevnik->EarlierSteps() : 0; }

void ponisti() {
  if (TakeBackTyped() || !glavni.dnevnik) return;
  if (const Step* step = glavni.dnevnik->Undo(glavni)) ShowStep(*step, News::undone);
}

void ponovi() {
  if (!glavni.dnevnik) return;
  if (const Step* step = glavni.dnevnik->Redo(glavni)) ShowStep(*step, News::redone);
}

void vrati_raniji_rad() {
  if (EarlierSteps() == 0) return;
  Step step = glavni.dnevnik->EarlierWork();
  if (step.changes.empty()) return;
  step.word = SelectedWord();
  Apply(glavni, step);
  glavni.dnevnik->Made(step);
  ShowStep(step, News::made);
}

}  // namespace kalvon
