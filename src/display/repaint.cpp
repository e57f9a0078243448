// SPDX-License-Identifier: MIT
#include "display/repaint.h"

#include <utility>

#include "display/clue_highlight.h"
#include "display/clue_lists.h"
#include "display/clue_page.h"
#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"

namespace kalvon {

namespace {

/// Prints the page of a list, with its bar, which need not be that of the selected clue.
void PrintAnew(int strana) {
  const auto [first, last] = BarOfList(strana);
  const auto bar = std::pair(first, last);
  files::pass_over([&] { skrol_pitanja(strana - 1); });
  first = bar.first;
  last = bar.second;
  ShowBarAnew(strana);
}

}  // namespace

void iscrtaj_sve() {
  if (glavni.pre_ucitavanja == 1) return;  // The title picture is drawn by its control.
  files::pass_over([] { crtaj_ukrstenicu(); });
  ShowMarkAnew();
  const auto list = glavni.lista_strana;
  const auto clue = std::exchange(glavni.sel_broj, 0);
  for (const int strana : {direction::across, direction::down}) PrintAnew(strana);
  glavni.lista_strana = list;
  glavni.sel_broj = clue;
}

}  // namespace kalvon
