// SPDX-License-Identifier: MIT
#include "shell/options_dialog.h"

#include <string>

#include "display/font_change.h"
#include "display/letter_boxes.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/spoken_names.h"
#include "shell/strip.h"
#include "solving/puzzle_commands.h"

namespace kalvon {

namespace {

/// Keeps a caption up to its colon and puts a text behind it.
void PutBehindColon(int label, const std::string& text) {
  auto& figure = frm_opcije->Label1(label);
  const std::string& caption = figure.Caption();
  figure.Caption(caption.substr(0, caption.find(':') + 1) + text);
}

void ShowStatistics() {
  const int cells = glavni.ukr_visina * glavni.ukr_sirina;
  const auto number = [](int value) { return " " + std::to_string(value); };
  PutBehindColon(statistics::dimensions, " X=" + std::to_string(glavni.ukr_sirina) +
                                             " Y=" + std::to_string(glavni.ukr_visina));
  PutBehindColon(statistics::cells, number(cells));
  PutBehindColon(statistics::black_cells, number(glavni.br_crnih));
  PutBehindColon(statistics::clean_cells, number(cells - glavni.br_crnih));
  PutBehindColon(statistics::words, number(glavni.br_uspravnih + glavni.br_vodoravnih));
  PutBehindColon(statistics::words_across, number(glavni.br_vodoravnih));
  PutBehindColon(statistics::words_down, number(glavni.br_uspravnih));
}

}  // namespace

void LayOutOptions() {
  auto& form = *frm_opcije;
  auto& settings = form.frm_opcije(2);
  auto& puzzle = form.frm_opcije(0);
  auto& statistics = form.frm_opcije(1);
  auto& go_on = form.cmd_opcije(option_command::go_on);
  // The English interface has neither a script nor a keyboard to choose.
  const bool with_settings = glavni.jezik == 0;
  const int above = with_settings ? settings.Height() : 0;

  settings.Left(135);
  settings.Top(60);
  settings.Visible(with_settings);
  puzzle.Left(135);
  puzzle.Top(above + 60);
  statistics.Left(135);
  statistics.Top(puzzle.Height() + above + 120);
  go_on.Top(puzzle.Height() + statistics.Height() + above + 180);
  form.Height(puzzle.Height() + statistics.Height() + above + go_on.Height() + 600);
}

void prikazi_opcije() {
  ShowStatistics();
  frm_opcije->Label2.Caption("");
  frm_opcije->Show();
  frm_glavni->Enabled(false);
}

void sakrij_opcije() {
  frm_glavni->Enabled(true);
  frm_glavni->Show();
  frm_opcije->Hide();
  FocusLetters();
}

void komanda_opcije(int index) {
  switch (index) {
    case option_command::go_on:
      primeni_font();
      ShowStripMenu();
      NameControls();
      return sakrij_opcije();
    case option_command::erase_all:
      return operacija_celine(PuzzleOperation::erase_all);
    case option_command::solve_all:
      primeni_font();
      return operacija_celine(PuzzleOperation::solve_all);
    case option_command::count_wrong:
      return operacija_celine(PuzzleOperation::count_wrong);
    case option_command::erase_wrong:
      return operacija_celine(PuzzleOperation::erase_wrong);
    default:
      return;
  }
}

}  // namespace kalvon
