// SPDX-License-Identifier: MIT
#include "display/clue_highlight.h"

#include "display/clue_page.h"
#include "display/inversion.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

/// Inverts rows of a list, counted from 1.
void InvertRows(int strana, int first, int last) {
  auto& list = frm_glavni->pic_tekst(strana - 1);
  Invert(list, 0, (first - 1) * list_row_height - 2, list.Width(), last * list_row_height - 2);
}

}  // namespace

void oznaci_pitanje(int strana, int red) {
  if (const auto clue = ClueOfRow(strana, red)) {
    const auto [first, last] = BarOfList(strana);
    first = clue->first_row;
    last = clue->last_row;
    InvertRows(strana, first, last);
  }
  ugasi_oznaku_pitanja(direction::Other(strana));
}

void ugasi_oznaku_pitanja(int strana) {
  ShowBarAnew(strana);  // A second time takes it off.
  const auto [first, last] = BarOfList(strana);
  first = 0;
  last = 0;
}

void ShowBarAnew(int strana) {
  const auto [first, last] = BarOfList(strana);
  if (first <= 0 || last <= 0) return;
  InvertRows(strana == direction::down ? strana : direction::across, first, last);
}

void MarkSelectedClue(int strana) {
  ugasi_oznaku_pitanja(direction::across);
  ugasi_oznaku_pitanja(direction::down);
  if (glavni.sel_broj == 0) return;
  for (const PageClue& clue : CluesOnPage(strana)) {
    if (clue.number != glavni.sel_broj) continue;
    oznaci_pitanje(strana, clue.last_row);
    return;
  }
}

}  // namespace kalvon
