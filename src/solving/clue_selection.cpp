// SPDX-License-Identifier: MIT
#include "solving/clue_selection.h"

#include <algorithm>
#include <cmath>

#include "crossword/fields.h"
#include "display/clue_highlight.h"
#include "display/clue_page.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "document/media_pack.h"
#include "multimedia/media_pane.h"
#include "shell/forms/frm_glavni.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

constexpr int right_button = 2;

/// The row of a list, from 1, at a pixel from its top.
int RowAt(double y) {
  return static_cast<int>(std::clamp(std::floor(y / list_row_height) + 1, 1.0, 1.0 * list_rows));
}

/// Finds the clue of a row and remembers its medium and its text; the text becomes "0" and nothing
/// else changes where there is no clue.
std::optional<PageClue> TakeClickedClue(int strana, int red) {
  const auto clue = ClueOfRow(strana, red);
  glavni.media_pitanje = clue ? glavni.lista(clue->n, 1, strana) : "0";
  if (clue) glavni.media_fajl = glavni.lista(clue->n, 5, strana);
  return clue;
}

/// Takes the mark off the word in the grid, which runs in the direction `smer`.
void UnmarkWord() {
  const Int16 of_word = glavni.smer;
  glavni.smer = direction::Other(of_word);
  ugasi_oznaku_reci();
  glavni.smer = of_word;
}

/// Selects the word of a list's direction that starts in a cell in view, by a click on its middle.
void ClickFirstCell(int strana, int x, int y) {
  glavni.smer = strana;
  glavni.iz_liste = 1;
  glavni.prelaz = 1;
  ClickCell(x, y);
}

}  // namespace

void klik_pitanje(int index, int button, double /*x*/, double y) {
  const int strana = index + 1;
  const int red = RowAt(y);
  const auto clue = TakeClickedClue(strana, red);
  if (!clue) {
    // The box cannot take the focus while the form is disabled.
    files::pass_over([] { frm_glavni->txt_rec(0).SetFocus(); });
    return;
  }
  const int x1 = glavni.pitanja(clue->number, 2);
  const int y1 = glavni.pitanja(clue->number, 3);

  glavni.prelaz_smer = glavni.smer;
  if (glavni.pret_x2 > 0 && glavni.pret_y2 > 0) glavni.prelaz_oba = 1;
  UnmarkWord();
  ugasi_oznaku_pitanja(strana);
  glavni.smer = strana;
  glavni.sel_broj = clue->number;
  glavni.sel_strana = strana;
  oznaci_pitanje(strana, red);
  BringIntoView(x1, y1);
  ClickFirstCell(strana, x1, y1);
  if (button == right_button && !Trimmed(glavni.media_fajl).empty())
    izvuci_media();
  else
    zatvori_media();
}

}  // namespace kalvon
