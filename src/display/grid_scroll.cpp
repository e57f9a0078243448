// SPDX-License-Identifier: MIT
#include "display/grid_scroll.h"

#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

void skrol_ukrstenica(int bar) {
  ugasi_oznaku_reci();
  if (bar == 0)
    glavni.pogled_x = frm_glavni->scr_hor.Value() + 1;
  else
    glavni.pogled_y = frm_glavni->scr_ver.Value() + 1;
  crtaj_ukrstenicu();
  oznaci_rec(0);
}

}  // namespace kalvon
