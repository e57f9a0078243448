// SPDX-License-Identifier: MIT
#include "document/crossword_load.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "display/clue_highlight.h"
#include "display/clue_lists.h"
#include "display/clue_selection.h"
#include "display/font_change.h"
#include "display/fonts.h"
#include "display/grid_geometry.h"
#include "display/grid_view.h"
#include "display/word_highlight.h"
#include "document/crossword_numbering.h"
#include "document/crossword_state.h"
#include "document/installment_reading.h"
#include "document/installments.h"
#include "document/load_progress.h"
#include "files/folder_entries.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/toolkit/desktop/screen.h"
#include "solving/letter_boxes.h"

namespace kalvon {
namespace {

void Reset() {
  glavni.smer = 1;
  glavni.rec_x1 = glavni.rec_y1 = glavni.rec_x2 = glavni.rec_y2 = 0;
  glavni.klik_x = glavni.klik_y = 0;
  glavni.pret_x1 = glavni.pret_y1 = glavni.pret_x2 = glavni.pret_y2 = 0;
  glavni.media_temp.clear();
  glavni.rec_tekst.clear();
  glavni.media_gotovo = 0;
  glavni.br_vodoravnih = glavni.br_uspravnih = glavni.br_crnih = 0;
  frm_glavni->scr_hor.Value(0);
  frm_glavni->scr_ver.Value(0);
}

std::vector<std::string> FilesOfFolder() {
  const toolkit::FileList& list = frm_ucit_snimi->File1;
  std::vector<std::string> files(static_cast<std::size_t>(list.ListCount()));
  std::ranges::generate(files, [&, row = 0]() mutable { return list.List(row++); });
  return files;
}

Header HeaderOf(const std::string& path) {
  files::TextReader file(path);
  return ReadHeader(file);
}

/// Puts an empty grid in place of the old crossword. All that can fail comes before the old one is
/// touched.
void ReplaceGrid(const std::string& chosen, const Installments& installments,
                 const Dimensions& size, int joined) {
  const bool beside = joined == join::side_by_side;
  const Int16 width = size.width * (beside ? installments.last : 1);
  const Int16 height = size.height * (beside ? 1 : installments.last);
  Table<std::string, 3> cells({{{0, width}, {0, height}, {0, 2}}});

  glavni.ukr_ucitana = chosen;
  glavni.ukr_osnova = installments.base;
  glavni.nast_cifre = installments.digits;
  glavni.nast_tekuci = installments.chosen;
  glavni.nast_zadnji = installments.last;
  glavni.nast_sirina = size.width;
  glavni.nast_visina = size.height;
  glavni.ukr_sirina = width;
  glavni.ukr_visina = height;
  glavni.ukr_polja = std::move(cells);
  glavni.rec_broj = Table<std::int32_t, 2>({{{0, width}, {0, height}}});
  glavni.pitanja = Table<std::int32_t, 2>({{{0, width * height / 2}, {0, 3}}});
  glavni.broj_pitanja = 0;
  // From here to the end of the reading there is nothing that could be saved or extracted.
  glavni.nast_ucitan = {};
  glavni.media_sadrzaj = {};
}

void DecorateCaption() {
  std::string caption = frm_glavni->Caption();
  if (caption.ends_with(')')) {
    caption.resize(std::min(caption.find('('), caption.size() - 1) + 1);
  } else {
    caption += " (";
  }
  frm_glavni->Caption(caption.append(FileName(glavni.ukr_staza)) + ')');
}

/// The first column or row of the view in a grid of `all` of them, so that the one with `wanted`
/// is in the view and as little as possible of it lies behind the grid's end.
int StartOfView(int wanted, int all) {
  const int latest = all - view_cells + 1;
  return std::max(1, wanted + view_cells > all ? latest : wanted);
}

void PlaceView(int joined) {
  toolkit::ScrollBar& hor = frm_glavni->scr_hor;
  toolkit::ScrollBar& ver = frm_glavni->scr_ver;
  hor.Min(0);
  hor.Max(std::max(0, glavni.ukr_sirina - view_cells));
  ver.Min(0);
  ver.Max(std::max(0, glavni.ukr_visina - view_cells));
  const int before = glavni.nast_tekuci - 1;
  if (joined == join::side_by_side) {
    glavni.pogled_x = StartOfView(before * glavni.nast_sirina + 1, glavni.ukr_sirina);
    glavni.pogled_y = 1;
    hor.Value(glavni.pogled_x - 1);
  } else {
    glavni.pogled_x = 1;
    glavni.pogled_y = StartOfView(before * glavni.nast_visina + 1, glavni.ukr_visina);
    ver.Value(glavni.pogled_y - 1);
  }
}

void PlaceListBars(int first_clue, const ClueCounts& counts) {
  const ClueCounts place = PlaceOfClue(first_clue);
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
  for (const int command : {1, 3, 4, 5}) form.cmd_glavni(command).Enabled(true);
  glavni.pre_ucitavanja = 0;
}

void ShowInFont() {
  if (glavni.jezik == 1) {
    frm_opcije->opt_opcije1(0).Value(true);
    frm_opcije->opt_opcije(1).Value(true);
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

void Load() {
  ugasi_oznaku_pitanja(glavni.smer);
  toolkit::Screen::MousePointer(11);
  Reset();

  const std::vector<std::string> folder = FilesOfFolder();
  const Installments installments = FindInstallments(frm_ucit_snimi->txt_ucit.Text(), folder);
  // The files are reached by their names on the disk: another one may differ only in capitals.
  const std::string chosen = std::exchange(glavni.ukr_staza, files::LowerCase(glavni.ukr_staza));
  const Header header = HeaderOf(chosen);
  const int joined = JoinOf(header);

  ReplaceGrid(chosen, installments, DimensionsOf(header), joined);
  DecorateCaption();
  StartProgress();
  InstallmentsRead read = ReadInstallments(folder, joined);
  PlaceView(joined);
  const ClueCounts counts = NumberClues(joined);
  crtaj_ukrstenicu();
  glavni.nast_smer = joined;
  // The whole crossword is there, so that it can be saved; without a clue it is no crossword.
  if (glavni.broj_pitanja > 0) glavni.nast_ucitan = std::move(read.number);
  glavni.nast_polja = std::move(read.cells);
  ShowFirstClue(counts);
}

/// After a load that gave up, the picture of the grid agrees with the state: no word is selected.
void ShowUnselected() {
  if (glavni.pre_ucitavanja == 1) return;  // The title picture stays.
  glavni.sel_broj = 0;
  files::pass_over([] { crtaj_ukrstenicu(); });
  files::pass_over([] { oznaci_rec(0); });
}

}  // namespace

void ucitaj_ukrstenicu() {
  try {
    Load();
  } catch (const files::RuntimeError&) {
    // A load that gave up before it replaced the grid leaves the crossword in it, which goes on
    // being saved into its own files.
    glavni.ukr_staza = files::LowerCase(glavni.ukr_ucitana);
    ShowUnselected();
  }
  toolkit::Screen::MousePointer(0);
}

}  // namespace kalvon
