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

}  // namespace

void prikazi_rec() {
  for (int i = 0; i < letter_boxes; ++i) {
    pass_over([&] { frm_glavni->txt_rec(i).Enabled(true); });
    pass_over([&] { frm_glavni->txt_rec(i).Text(""); });
    pass_over([&] { frm_glavni->lbl_rec(i).Visible(false); });
  }

  glavni.rec_tekst.clear();
  glavni.rec_polja.clear();
  glavni.otkucano.clear();
  for (const GridCell& place : SelectedCells()) pass_over([&] { TakeLetter(place); });

  const int shown = std::min(static_cast<int>(glavni.rec_tekst.size()), letter_boxes);
  for (int i = 0; i < shown; ++i) {
    const char letter = glavni.rec_tekst[static_cast<std::size_t>(i)];
    pass_over([&] {
      frm_glavni->txt_rec(i).Text(letter == '_' ? "_" : ShownLetter(letter, ChosenWriting()));
    });
    pass_over([&] { frm_glavni->lbl_rec(i).Visible(true); });
  }

  pass_over([&] { frm_glavni->txt_rec(0).SetFocus(); });
  glavni.rec_poz = 0;
}

void FocusLetters() {
  auto& box = frm_glavni->txt_rec(glavni.rec_poz);
  if (box.Enabled()) box.SetFocus();
}

}  // namespace kalvon
