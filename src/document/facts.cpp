// SPDX-License-Identifier: MIT
#include "document/facts.h"

#include "document/crossword_state.h"

namespace kalvon {

void UpdateFacts() {
  glavni.slova = CountLetters(glavni);
  glavni.izmenjeno = !glavni.snimljeno.HoldAll(glavni);
}

}  // namespace kalvon
