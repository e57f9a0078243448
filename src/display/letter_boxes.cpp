// SPDX-License-Identifier: MIT
#include "display/letter_boxes.h"

#include <algorithm>
#include <string>

#include "crossword/cell.h"
#include "display/selected_word.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "files/run_time_error.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

using files::pass_over;

namespace {

void TakeLetter(const GridCell& place) {
  const std::string& cell = glavni.ukr_polja(place.x, place.y, 1);
  if (!IsLetterCell(cell)) return;
  const std::string_view letter = UserLetter(cell);
  glavni.rec_tekst += letter.empty() ? "_" : letter;
  glavni.rec_polja.push_back(place);
}

/// A letter of a word that has a box for each bears the last digit of its number.
std::string PositionOf(int letter) {
  const bool slides = LettersInEditor() > letter_boxes;
  return std::to_string(slides ? letter + 1 : (letter + 1) % 10);
}

void ShowLetters() {
  const int shown = std::min(LettersInEditor(), letter_boxes);
  for (int box = 0; box < shown; ++box) {
    const int letter = LetterOfBox(box);
    pass_over([&] { ShowInBox(letter); });
    pass_over([&] { frm_glavni->lbl_rec(box).Caption(PositionOf(letter)); });
    pass_over([&] { frm_glavni->lbl_rec(box).Visible(true); });
  }
}

}  // namespace

int LettersInEditor() { return static_cast<int>(glavni.rec_tekst.size()); }

int LetterOfBox(int box) { return glavni.rec_prvo + box; }

void ShowInBox(int letter) {
  const int box = letter - glavni.rec_prvo;
  if (box < 0 || box >= letter_boxes) return;
  const char stored = glavni.rec_tekst[static_cast<std::size_t>(letter)];
  frm_glavni->txt_rec(box).Text(stored == '_' ? "_" : ShownLetter(stored, ChosenWriting()));
}

void prikazi_rec() {
  for (int i = 0; i < letter_boxes; ++i) {
    pass_over([&] { frm_glavni->txt_rec(i).Enabled(true); });
    pass_over([&] { frm_glavni->txt_rec(i).Text(""); });
    pass_over([&] { frm_glavni->lbl_rec(i).Visible(false); });
  }

  glavni.rec_tekst.clear();
  glavni.rec_polja.clear();
  glavni.otkucano.clear();
  glavni.rec_se_kuca = false;
  glavni.rec_prvo = 0;
  for (const GridCell& place : SelectedCells()) pass_over([&] { TakeLetter(place); });
  ShowLetters();

  pass_over([&] { frm_glavni->txt_rec(0).SetFocus(); });
  glavni.rec_poz = 0;
}

void FocusLetter() {
  const int letter = glavni.rec_poz;
  const int first = std::clamp(glavni.rec_prvo, letter - letter_boxes + 1, letter);
  if (first != glavni.rec_prvo) {
    glavni.rec_prvo = first;
    ShowLetters();
  }
  frm_glavni->txt_rec(letter - first).SetFocus();
}

void FocusLetters() {
  if (frm_glavni->txt_rec(0).Enabled()) FocusLetter();
}

}  // namespace kalvon
