// SPDX-License-Identifier: MIT
#include "shell/crossword_opening.h"

#include <algorithm>
#include <string>
#include <utility>

#include "crossword/installments.h"
#include "crossword/numbering.h"
#include "crossword/reading.h"
#include "display/clue_highlight.h"
#include "display/clue_lists.h"
#include "display/font_change.h"
#include "display/fonts.h"
#include "display/grid_geometry.h"
#include "display/grid_view.h"
#include "display/letter_boxes.h"
#include "display/word_highlight.h"
#include "document/crossword_load.h"
#include "document/crossword_state.h"
#include "document/facts.h"
#include "document/journal_keeping.h"
#include "document/load_progress.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/toolkit/desktop/screen.h"
#include "solving/clue_selection.h"

namespace kalvon {
namespace {

void DecorateCaption() {
  std::string caption = frm_glavni->Caption();
  if (caption.ends_with(')')) {
    caption.resize(std::min(caption.find('('), caption.size() - 1) + 1);
  } else {
    caption += " (";
  }
  frm_glavni->Caption(caption.append(FileName(glavni.ukr_staza)) + ')');
}

/// Sets the bars of the grid, and the view on the chosen installment.
void PlaceView() {
  toolkit::ScrollBar& hor = frm_glavni->scr_hor;
  toolkit::ScrollBar& ver = frm_glavni->scr_ver;
  hor.Min(0);
  hor.Max(std::max(0, glavni.ukr_sirina - view_cells));
  ver.Min(0);
  ver.Max(std::max(0, glavni.ukr_visina - view_cells));
  const int before = glavni.nast_tekuci - 1;
  if (glavni.nast_smer == join::side_by_side) {
    glavni.pogled_x = FirstShown(before * glavni.nast_sirina + 1, glavni.ukr_sirina);
    glavni.pogled_y = 1;
    hor.Value(glavni.pogled_x - 1);
  } else {
    glavni.pogled_x = 1;
    glavni.pogled_y = FirstShown(before * glavni.nast_visina + 1, glavni.ukr_visina);
    ver.Value(glavni.pogled_y - 1);
  }
}

/// The cell of the view with the lowest clue number.
struct FirstClue {
  int number;
  int x;
  int y;
};

/// A view without a clue gives the cell (1, 1) and a number that no clue has.
FirstClue FindFirstClue() {
  constexpr int no_clue = 250000;
  FirstClue first{.number = no_clue, .x = 1, .y = 1};
  for (int y = glavni.pogled_y; InView(y, glavni.pogled_y) && y <= glavni.ukr_visina; ++y) {
    for (int x = glavni.pogled_x; InView(x, glavni.pogled_x) && x <= glavni.ukr_sirina; ++x) {
      const int number = glavni.rec_broj(x, y);
      if (number != 0 && number < first.number) first = {number, x, y};
    }
  }
  return first;
}

void PlaceListBars(int first_clue, const ClueCounts& counts) {
  const ClueCounts place = PlaceOfClue(glavni, first_clue);
  toolkit::ScrollBar& across = frm_glavni->scr_tekst(0);
  toolkit::ScrollBar& down = frm_glavni->scr_tekst(1);
  glavni.skrol_aktivan = 0;
  across.Min(1);
  down.Min(1);
  across.Max(counts.across);
  down.Max(counts.down);
  across.Value(place.across);
  down.Value(place.down);
  glavni.skrol1 = across.Value();
  glavni.skrol2 = down.Value();
  glavni.skrol_aktivan = 1;
}

/// The first crossword brings the controls to life.
void EnableControls() {
  FrmGlavni& form = *frm_glavni.operator->();
  form.pic_ukr.Enabled(true);
  form.scr_hor.Enabled(true);
  form.scr_ver.Enabled(true);
  for (const int list : {0, 1}) {
    form.scr_tekst(list).Enabled(true);
    form.pic_tekst(list).Enabled(true);
  }
  for (int box = 0; box < letter_boxes; ++box) {
    form.txt_rec(box).Enabled(false);
    form.txt_rec(box).Text("");
    form.lbl_rec(box).Visible(false);
  }
  for (const int index : command::on_crossword) form.cmd_glavni(index).Enabled(true);
  glavni.pre_ucitavanja = 0;
}

void ShowInFont() {
  if (glavni.jezik == 1) {
    frm_opcije->opt_opcije1(layout::yu_ascii).Value(true);
    frm_opcije->opt_opcije(script::latin).Value(true);
    postavi_charset();
    // A list that has no clue behind the first one shows its last, where its bar stands.
    skrol_pitanja(0);
    skrol_pitanja(1);
  } else {
    primeni_font();
  }
}

void ShowFirstClue(const ClueCounts& counts) {
  const FirstClue first = FindFirstClue();
  glavni.lista_strana = 0;
  crtaj_pitanja(first.x, first.y);
  PlaceListBars(first.number, counts);
  if (glavni.pre_ucitavanja == 1) EnableControls();
  ShowInFont();
  klik_pitanje(0, 1, 1, 1);
}

void Show(Crossword opened) {
  ugasi_oznaku_pitanja(glavni.smer);
  ReplaceCrossword(std::move(opened));
  DecorateCaption();
  StartProgress();
  ReadInstallments(glavni, ProgressStep);
  PlaceView();
  const ClueCounts counts = NumberClues(glavni, ProgressStep);
  otvori_dnevnik();
  crtaj_ukrstenicu();
  ShowFirstClue(counts);
}

/// After a load that gave up, the picture of the grid agrees with the state: no word is selected.
void ShowUnselected() {
  if (glavni.pre_ucitavanja == 1) return;  // The title picture stays.
  glavni.sel_broj = 0;
  files::pass_over([] { crtaj_ukrstenicu(); });
  files::pass_over([] { oznaci_rec(0); });
}

/// Empty if no file is chosen in the dialog; the path then is that of an earlier one.
std::string NameOfChosen() {
  return frm_ucit_snimi->txt_ucit.Text().empty() ? "" : std::string(FileName(glavni.ukr_staza));
}

News NewsOfLoad() {
  if (glavni.dnevnik->PutBack() > 0) return News::restored;
  return glavni.dnevnik->Waiting() > 0 ? News::waiting : News::loaded;
}

}  // namespace

void ucitaj_ukrstenicu() {
  const toolkit::Hourglass hourglass;
  Crossword opened;
  int error = files::pass_over([&] { opened = OpenChosenCrossword(); });
  if (error == 0) {
    error = files::pass_over([&] { Show(std::move(opened)); });
    if (error != 0) ShowUnselected();
  }
  glavni.vest = {.news = error == 0 ? NewsOfLoad() : News::load_failed,
                 .files = {{NameOfChosen(), error}}};
  UpdateFacts();
}

}  // namespace kalvon
