// SPDX-License-Identifier: MIT
#include "shell/startup.h"

#include "crossword/direction.h"
#include "crossword/sample_copies.h"
#include "display/grid_geometry.h"
#include "document/crossword_state.h"
#include "document/journal_keeping.h"
#include "document/news.h"
#include "document/settings.h"
#include "document/time_spent.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "multimedia/media_pane.h"
#include "shell/contrast.h"
#include "shell/english_captions.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/language.h"
#include "shell/options_dialog.h"
#include "shell/recent_files.h"
#include "shell/spoken_names.h"
#include "shell/spoken_pictures.h"
#include "shell/strip.h"
#include "shell/toolkit/desktop/host_settings.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/application.h"
#include "shell/zoom.h"

namespace kalvon {

namespace {

constexpr int without_title_bar =
    300;  // Twips by which a form that is too high for the screen grows.

void CenterOnScreen(toolkit::Form& form) {
  form.Left(HalfDown(toolkit::Screen::Width() - form.Width()));
  form.Top(HalfDown(toolkit::Screen::Height() - form.Height()));
}

void PlaceForms() {
  if (frm_glavni->Height() > toolkit::Screen::Height()) {
    frm_glavni->Caption("");
    frm_glavni->Height(frm_glavni->Height() + without_title_bar);
  }
  CenterOnScreen(*frm_glavni);
  CenterOnScreen(*frm_ucit_snimi);
  CenterOnScreen(*frm_opcije);
  LayOutOptions();
}

/// The load dialog begins at the user's crosswords, or in the program's own folder.
void ShowFirstFolder() {
  const std::string& crosswords = toolkit::App::Folders().crosswords;
  const std::string folder = crosswords.empty() ? glavni.app_staza : crosswords;
  auto& dialog = *frm_ucit_snimi;
  dialog.Drive1.Drive(folder.substr(0, 3));
  dialog.Dir1.Path(folder);
  dialog.File1.Path(folder);
  dialog.File1.Pattern("*.qvm");
}

/// An installed program gives its samples to the user, once for each of its versions.
void HandOutSamples() {
  const toolkit::ProgramFolders& folders = toolkit::App::Folders();
  if (folders.crosswords.empty() || folders.crosswords.starts_with(folders.shipped)) return;
  const std::string language = glavni.jezik == 0 ? "sr" : "en";
  const std::string setting = "samples_" + language;
  if (toolkit::GetSetting(setting, "") == KALVON_VERSION) return;
  const int failure = files::pass_over([&] {
    CopySamples(files::WithBackslash(folders.shipped) + "primeri\\" + language, folders.crosswords);
  });
  if (failure == 0) toolkit::SaveSetting(setting, KALVON_VERSION);
}

/// Says so where nothing outlives the program.
void TellOfFolders() {
  const int error = toolkit::App::Folders().error;
  if (error != 0) glavni.vest = {.news = News::nothing_kept, .files = {{"", error}}};
}

void DisableWhatNeedsACrossword() {
  auto& form = *frm_glavni;
  form.pic_ukr.Enabled(false);
  form.scr_hor.Enabled(false);
  form.scr_ver.Enabled(false);
  form.scr_tekst.ForEach([](auto& bar) { bar.Enabled(false); });
  form.pic_tekst.ForEach([](auto& list) { list.Enabled(false); });
  form.txt_rec.ForEach([](auto& box) { box.Enabled(false); });
  for (const int index : command::on_crossword) form.cmd_glavni(index).Enabled(false);
}

void ChooseFont() {
  const bool english = glavni.jezik == 1;
  glavni.font_ime = english ? "MS Sans Serif" : "Kalvon";
  if (english) frm_opcije->opt_opcije(script::cyrillic).Value(true);
  auto& form = *frm_glavni;
  form.txt_media.ForEach([](auto& box) { box.FontName(glavni.font_ime); });
  form.txt_rec.ForEach([](auto& box) { box.FontName(glavni.font_ime); });
}

void Start() {
  glavni.jezik = ProgramLanguage();
  glavni.app_staza = files::WithBackslash(toolkit::App::Path());
  PlaceForms();
  HandOutSamples();
  ShowFirstFolder();
  glavni.smer = direction::down;
  glavni.rec_x1 = glavni.rec_y1 = glavni.rec_x2 = glavni.rec_y2 = 0;
  glavni.pre_ucitavanja = 1;
  frm_glavni->ZoomGrain(cell_pitch);
  DisableWhatNeedsACrossword();
  ucitaj_ini();
  ucitaj_izbor();
  ucitaj_nedavne();
  primeni_kontrast();
  glavni.pomoc_otvorena = 0;
  ChooseFont();
  if (glavni.jezik == 1) WriteEnglishCaptions();
  pocisti_dnevnike();
  ShowStripMenu();
  NameControls();
  DescribePictures();
  ShowZoom();
  TellOfFolders();
  UpdateStrip();
  glavni.forma_sirina = frm_glavni->Width();
  glavni.forma_visina = frm_glavni->Height();
}

}  // namespace

void pokreni() {
  try {
    Start();
  } catch (const files::RuntimeError&) {
    toolkit::End();
  }
}

void kraj() {
  zatvori_dnevnik();
  prekini();
}

void prekini() {
  upisi_vreme();
  files::pass_over([] { zatvori_media(); });
  snimi_ini();
  SaveWindow();
  toolkit::End();
}

void HoldSize() {
  if (glavni.forma_sirina == 0) return;  // The start sequence still settles the size.
  frm_glavni->Width(glavni.forma_sirina);
  frm_glavni->Height(glavni.forma_visina);
}

}  // namespace kalvon
