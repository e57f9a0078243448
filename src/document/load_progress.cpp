// SPDX-License-Identifier: MIT
#include "document/load_progress.h"

#include "document/crossword_state.h"
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {

void StartProgress() {
  constexpr int columns = 150;
  glavni.napredak_br = 0;
  glavni.napredak_x = 0;
  // Each cell is a step when it is read and another one when it is numbered.
  const Int16 steps = glavni.ukr_visina * glavni.ukr_sirina * 2;
  glavni.napredak_korak = steps / columns;
}

void napredak() {
  if (glavni.napredak_br < glavni.napredak_korak) return;
  glavni.napredak_br = 0;
  glavni.napredak_x = glavni.napredak_x + 1;
  toolkit::PictureBox& bar = frm_ucit_snimi->pic_status;
  bar.FilledBox(glavni.napredak_x, 0, glavni.napredak_x, bar.Height(), 0xC0C0C0);
}

void ProgressStep() {
  ++glavni.napredak_br;
  napredak();
}

}  // namespace kalvon
