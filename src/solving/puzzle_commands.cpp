// SPDX-License-Identifier: MIT
#include "solving/puzzle_commands.h"

#include <string>

#include "crossword/cell.h"
#include "display/grid_view.h"
#include "display/selected_word.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_opcije.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {

namespace {

/// Applies a change to each letter cell of the selected word.
void ChangeWord(void (*change)(std::string& cell)) {
  for (const auto [x, y] : SelectedCells()) {
    std::string& cell = glavni.ukr_polja.Mutable(x, y, 1);
    if (IsLetterCell(cell)) change(cell);
  }
}

/// The repaint wipes whatever the first call draws; the last fills the letter boxes again.
void ShowChange() {
  ugasi_oznaku_reci();
  crtaj_ukrstenicu();
  oznaci_rec(0);
}

void Change(std::string& cell, PuzzleOperation operation) {
  if (operation == PuzzleOperation::solve_all) {
    cell = WithUserLetter(cell, cell.front());
  } else if (operation == PuzzleOperation::erase_all ||
             (operation == PuzzleOperation::erase_wrong && IsWrong(cell))) {
    cell = WithoutUserLetter(cell);
  }
}

}  // namespace

void resi_rec() {
  ChangeWord([](std::string& cell) { cell.replace(1, UserLetter(cell).size(), 1, cell.front()); });
  ShowChange();
}

void brisi_rec() {
  ChangeWord([](std::string& cell) { cell.erase(1, UserLetter(cell).size()); });
  ShowChange();
}

void operacija_celine(PuzzleOperation operation) {
  const toolkit::Hourglass hourglass;
  std::int32_t wrong_letters = 0;
  for (int x = 1; x <= glavni.ukr_sirina; ++x) {
    for (int y = 1; y <= glavni.ukr_visina; ++y) {
      const std::string& cell = glavni.ukr_polja(x, y, 1);
      if (!IsLetterCell(cell)) continue;
      if (IsWrong(cell)) ++wrong_letters;
      Change(glavni.ukr_polja.Mutable(x, y, 1), operation);
    }
  }

  if (operation == PuzzleOperation::count_wrong) {
    frm_opcije->Label2.Caption(std::to_string(wrong_letters));
  } else {
    ShowChange();
  }
}

}  // namespace kalvon
