// SPDX-License-Identifier: MIT
#include "display/clue_lists.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "crossword/clue.h"
#include "crossword/fields.h"
#include "crossword/numbering.h"
#include "display/clue_highlight.h"
#include "display/clue_page.h"
#include "display/clue_printing.h"
#include "display/fonts.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

constexpr int sides[] = {direction::across, direction::down};

bool IsTouched(int strana) { return glavni.lista_strana == 0 || glavni.lista_strana == strana; }

/// A new clue is taken while at most 14 rows are printed, and is then printed to its end.
bool HasRoom(int strana) { return IsTouched(strana) && LastPrintedRow(strana) < list_rows; }

void SetFonts() {
  for (const int strana : sides)
    SetFont(frm_glavni->pic_tekst(strana - 1), glavni.font_ime, 9, false);
  SetFont(frm_glavni->lbl_sirina, glavni.font_ime, 9, false);
  postavi_charset();
}

/// Empties a page. Its bar goes with what was drawn.
void ClearPage(int strana) {
  frm_glavni->pic_tekst(strana - 1).Picture({});
  CluesInList(strana) = 0;
  const auto [first, last] = BarOfList(strana);
  first = 0;
  last = 0;
}

/// Puts the text of a clue of a page into its shown form.
void konvertuj_pitanje(int strana, int n) {
  std::string& text = glavni.lista.Mutable(n, 1, strana);
  text = ShownClue(text, ChosenWriting());
}

/// Adds the clue that starts in a cell to the page of a list.
void TakeClue(int strana, int x, int y) {
  const Clue clue = ReadClue(glavni.ukr_polja(x, y, 2), strana);
  const int n = CluesInList(strana) + 1;
  CluesInList(strana) = n;
  auto& lista = glavni.lista;
  lista.Mutable(n, 1, strana) = std::to_string(glavni.rec_broj(x, y)) + ": ";
  lista.Mutable(n, 1, strana) += clue.text.substr(0, printed_at_most);
  lista.Mutable(n, 2, strana) = std::to_string(x);
  lista.Mutable(n, 3, strana) = std::to_string(y);
  lista.Mutable(n, 4, strana) = "1";
  lista.Mutable(n, 5, strana) = Trimmed(clue.media);
  konvertuj_pitanje(strana, n);
  const int rows = PrintClue(strana, glavni.lista(n, 1, strana), glavni.lista(n, 5, strana));
  lista.Mutable(n, 4, strana) = std::to_string(rows);
}

/// Goes to the next cell in the order in which clues are numbered.
void MoveOn(int& x, int& y) {
  const bool down_the_columns = glavni.nast_smer == join::side_by_side;
  int& inner = down_the_columns ? y : x;
  int& outer = down_the_columns ? x : y;
  if (++inner > (down_the_columns ? glavni.ukr_visina : glavni.ukr_sirina)) {
    inner = 1;
    ++outer;
  }
}

}  // namespace

void crtaj_pitanja(int x, int y) {
  SetFonts();
  for (const int strana : sides)
    if (IsTouched(strana)) ClearPage(strana);
  glavni.lista_red1 = -1;
  glavni.lista_red2 = -1;

  const Int16 cells = glavni.ukr_sirina * glavni.ukr_visina;
  for (int step = 0; step < cells && std::ranges::any_of(sides, HasRoom); ++step) {
    for (const int strana : sides)
      if (HasRoom(strana) && StartsWord(glavni.ukr_polja(x, y, 2), strana)) TakeClue(strana, x, y);
    MoveOn(x, y);
    if (x > glavni.ukr_sirina || y > glavni.ukr_visina) break;
  }
}

void skrol_pitanja(int k) {
  const int strana = k + 1;
  glavni.lista_strana = strana;
  // The head of the page is always the clue at the bar's place, whatever the page held before: it
  // may have been empty, with the bar at its end because no clue of the list followed the first.
  const int value = frm_glavni->scr_tekst(k).Value();
  const int head = ClueAtPlace(glavni, value, strana);
  HandledScroll(strana) = value;
  if (head == 0) return;
  crtaj_pitanja(glavni.pitanja(head, 2), glavni.pitanja(head, 3));
  if (glavni.sel_broj != 0 && glavni.sel_strana == strana) MarkSelectedClue(strana);
}

}  // namespace kalvon
