// SPDX-License-Identifier: MIT
#include "document/facts.h"

#include "document/crossword_state.h"

namespace kalvon {

void UpdateFacts() {
  glavni.slova = CountLetters(glavni);
  const auto& journal = glavni.dnevnik;
  glavni.izmenjeno = journal && journal->IsModified();
  glavni.vest.journal_error = journal ? journal->NewFailure() : 0;
}

}  // namespace kalvon
