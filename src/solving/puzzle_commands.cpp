// SPDX-License-Identifier: MIT
#include "solving/puzzle_commands.h"

#include <string>
#include <utility>

#include "crossword/cell.h"
#include "display/grid_view.h"
#include "display/selected_word.h"
#include "display/word_highlight.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_opcije.h"
#include "shell/toolkit/desktop/screen.h"
#include "solving/steps.h"

namespace kalvon {

namespace {

/// The repaint wipes whatever the first call draws; the last fills the letter boxes again.
void ShowChange() {
  ugasi_oznaku_reci();
  crtaj_ukrstenicu();
  oznaci_rec(0);
}

/// Applies a change to each letter cell of the selected word.
void ChangeWord(StepKind kind, void (*change)(std::string& cell)) {
  Step step = BeginStep(kind);
  for (const GridCell place : SelectedCells()) {
    std::string cell = glavni.ukr_polja(place.x, place.y, 1);
    if (!IsLetterCell(cell)) continue;
    change(cell);
    ChangeCell(glavni, step, place, std::move(cell));
  }
  ShowChange();
  EndStep(std::move(step));
}

/// A letter cell as an operation leaves it.
std::string Changed(const std::string& cell, PuzzleOperation operation) {
  switch (operation) {
    case PuzzleOperation::solve_all:
      return HasSolution(cell) ? WithUserLetter(cell, cell.front()) : cell;
    case PuzzleOperation::erase_all:
      return WithoutUserLetter(cell);
    case PuzzleOperation::erase_wrong:
      return IsWrong(cell) ? WithoutUserLetter(cell) : cell;
    default:
      return cell;
  }
}

StepKind KindOf(PuzzleOperation operation) {
  if (operation == PuzzleOperation::solve_all) return StepKind::puzzle_solved;
  return operation == PuzzleOperation::erase_all ? StepKind::puzzle_erased : StepKind::wrong_erased;
}

}  // namespace

void resi_rec() {
  ChangeWord(StepKind::word_solved, [](std::string& cell) {
    if (HasSolution(cell)) cell.replace(1, UserLetter(cell).size(), 1, cell.front());
  });
}

void brisi_rec() {
  ChangeWord(StepKind::word_erased,
             [](std::string& cell) { cell.erase(1, UserLetter(cell).size()); });
}

void operacija_celine(PuzzleOperation operation) {
  const toolkit::Hourglass hourglass;
  Step step = BeginStep(KindOf(operation));
  std::int32_t wrong_letters = 0;
  for (int x = 1; x <= glavni.ukr_sirina; ++x) {
    for (int y = 1; y <= glavni.ukr_visina; ++y) {
      const std::string& cell = glavni.ukr_polja(x, y, 1);
      if (!IsLetterCell(cell)) continue;
      if (IsWrong(cell)) ++wrong_letters;
      ChangeCell(glavni, step, {x, y}, Changed(cell, operation));
    }
  }

  if (operation == PuzzleOperation::count_wrong) {
    frm_opcije->Label2.Caption(std::to_string(wrong_letters));
    glavni.vest = {.news = News::counted, .count = wrong_letters};
  } else {
    ShowChange();
    EndStep(std::move(step));
  }
}

}  // namespace kalvon
