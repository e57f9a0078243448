// SPDX-License-Identifier: MIT
#include "display/font_change.h"

#include "display/clue_lists.h"
#include "display/fonts.h"
#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

using files::pass_over;

namespace {

const char* FontOfOptions() {
  const Writing writing = ChosenWriting();
  if (writing.english) return "MS Sans Serif";
  if (writing.code_page) return "Arial";
  return writing.latin ? "Kalvon" : "C_Kalvon";
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
