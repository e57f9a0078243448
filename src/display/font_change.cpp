// SPDX-License-Identifier: MIT
#include "display/font_change.h"

#include "display/clue_lists.h"
#include "display/fonts.h"
#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"

namespace kalvon {

using files::pass_over;

namespace {

const char* FontOfOptions() {
  if (glavni.jezik == 1) return "MS Sans Serif";
  if (frm_opcije->opt_opcije1(1).Value()) return "Arial";
  return frm_opcije->opt_opcije(0).Value() ? "C_Kalvon" : "Kalvon";
}

}  // namespace

void primeni_font() {
  glavni.font_ime = FontOfOptions();
  ForEachLetterControl([](toolkit::Control& control) { control.FontName(glavni.font_ime); });
  pass_over([] { crtaj_ukrstenicu(); });
  pass_over([] { oznaci_rec(0); });
  pass_over([] { skrol_pitanja(0); });
  pass_over([] { skrol_pitanja(1); });
}

}  // namespace kalvon
