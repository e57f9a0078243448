// SPDX-License-Identifier: MIT
#include "document/load_progress.h"

#include "crossword/reading.h"
#include "display/colours.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {

void StartProgress() {
  constexpr int columns = 150;
  glavni.napredak_br = 0;
  glavni.napredak_x = 0;
  glavni.napredak_korak = StepsOf(glavni) / columns;
}

void napredak() {
  if (glavni.napredak_br < glavni.napredak_korak) return;
  glavni.napredak_br = 0;
  glavni.napredak_x = glavni.napredak_x + 1;
  toolkit::PictureBox& bar = frm_ucit_snimi->pic_status;
  bar.FilledBox(glavni.napredak_x, 0, glavni.napredak_x, bar.Height(), ShownColours().block);
}

void ProgressStep() {
  ++glavni.napredak_br;
  napredak();
}

}  // namespace kalvon
