// SPDX-License-Identifier: MIT
#include "display/clue_page.h"

#include "crossword/fields.h"

namespace kalvon {

std::vector<PageClue> CluesOnPage(int strana) {
  const auto& lista = glavni.lista;
  std::vector<PageClue> clues;
  int rows = 0;
  for (int n = 1; n <= CluesInList(strana); ++n) {
    const int first = rows + 1;
    rows += DecimalValue(lista(n, 4, strana));
    clues.push_back({n, DecimalValue(lista(n, 1, strana)), first, rows});
  }
  return clues;
}

std::optional<PageClue> ClueOfRow(int strana, int row) {
  for (const PageClue& clue : CluesOnPage(strana))
    if (row >= clue.first_row && row <= clue.last_row) return clue;
  return std::nullopt;
}

}  // namespace kalvon
