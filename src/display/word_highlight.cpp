// SPDX-License-Identifier: MIT
#include "display/word_highlight.h"

#include "crossword/numbering.h"
#include "display/clue_highlight.h"
#include "display/clue_page.h"
#include "display/grid_geometry.h"
#include "display/inversion.h"
#include "display/letter_boxes.h"
#include "display/selected_word.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

/// Inverts the inside of a grid cell, if the view shows it.
void InvertCell(int x, int y) {
  if (!InView(x, glavni.pogled_x) || !InView(y, glavni.pogled_y)) return;
  const int left = (x - glavni.pogled_x) * cell_pitch;
  const int top = (y - glavni.pogled_y) * cell_pitch;
  Invert(frm_glavni->pic_ukr, left, top, left + cell_pitch - 2, top + cell_pitch - 2);
}

void InvertAcross(int x1, int x2, int y) {
  for (int x = x1; x <= x2; ++x) InvertCell(x, y);
}

void InvertDown(int x, int y1, int y2) {
  for (int y = y1; y <= y2; ++y) InvertCell(x, y);
}

/// `nadji_rec` has turned the direction. It stays turned only for a click on the word on record,
/// which runs the other way; any other click turns it back.
void SettleDirection() {
  const auto [x, y] = ClickedCell();
  const bool on_word = glavni.smer == direction::down
                           ? y == glavni.pret_y1 && x >= glavni.pret_x1 && x <= glavni.pret_x2
                           : x == glavni.pret_x1 && y >= glavni.pret_y1 && y <= glavni.pret_y2;
  if (!on_word) nadji_rec();
}

/// Brings the clue of the word to the head of its list and puts the bar on it. A selection without
/// a word start has no clue: its list stays where it is, and no bar stands.
void BringClueToHead() {
  const int strana = glavni.smer;
  const int n = glavni.rec_broj(glavni.rec_x1, glavni.rec_y1);
  glavni.lista_strana = strana;
  // A page that moves is printed without a bar, one that stays may still have an older one.
  glavni.sel_broj = 0;
  if (n != 0) {
    auto& bar = frm_glavni->scr_tekst(strana - 1);
    const ClueCounts place = PlaceOfClue(glavni, n);
    bar.Value(strana == direction::across ? place.across : place.down);
    HandledScroll(strana) = bar.Value();
  }
  glavni.sel_broj = n;
  glavni.sel_strana = strana;
  MarkSelectedClue(strana);
}

}  // namespace

void ugasi_oznaku_reci() {
  const auto& s = glavni;
  if (s.pret_x1 <= 0 && s.pret_x2 <= 0 && s.pret_y1 <= 0 && s.pret_y2 <= 0) return;
  if (s.smer == direction::down)
    InvertAcross(s.pret_x1, s.pret_x2, s.pret_y1);
  else
    InvertDown(s.pret_x1, s.pret_y1, s.pret_y2);
}

void ShowMarkAnew() {
  if (glavni.smer == direction::across)
    InvertAcross(glavni.rec_x1, glavni.rec_x2, glavni.rec_y1);
  else
    InvertDown(glavni.rec_x1, glavni.rec_y1, glavni.rec_y2);
}

void oznaci_rec(int poziv) {
  if (poziv == 1) SettleDirection();
  ShowMarkAnew();
  if (poziv == 1 && glavni.iz_liste == 0) BringClueToHead();
  prikazi_rec();
}

}  // namespace kalvon
