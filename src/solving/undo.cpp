// SPDX-License-Identifier: MIT
#include "solving/undo.h"

#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "document/facts.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

/// Makes a step of the history, and shows the place where it was made first.
void Make(const Step& step, News news) {
  Apply(glavni, step);
  crtaj_ukrstenicu();
  oznaci_rec(0);
  SelectWord(step.word);
  glavni.vest = {.news = news, .step = step.kind};
  UpdateFacts();
}

}  // namespace

bool CanUndo() { return !glavni.otkucano.empty() || glavni.istorija.LastMade() != nullptr; }

bool CanRedo() { return glavni.istorija.LastUndone() != nullptr; }

void ponisti() {
  if (TakeBackTyped()) return;
  const Step* last = glavni.istorija.LastMade();
  if (last == nullptr) return;
  const Step back = Inverse(*last);
  if (!Fits(glavni, back)) return;
  glavni.istorija.Back();
  Make(back, News::undone);
}

void ponovi() {
  const Step* next = glavni.istorija.LastUndone();
  if (next == nullptr || !Fits(glavni, *next)) return;
  glavni.istorija.Forward();
  Make(*next, News::redone);
}

}  // namespace kalvon
