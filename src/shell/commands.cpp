// SPDX-License-Identifier: MIT
#include "shell/commands.h"

#include "display/letter_boxes.h"
#include "document/crossword_save.h"
#include "document/crossword_state.h"
#include "multimedia/media_pane.h"
#include "shell/forms/frm_glavni.h"
#include "shell/help.h"
#include "shell/load_dialog.h"
#include "shell/options_dialog.h"
#include "shell/startup.h"
#include "solving/puzzle_commands.h"

namespace kalvon {

namespace {

void Save() {
  snimi_ukrstenicu();
  FocusLetters();
}

void SolveWord() {
  resi_rec();
  FocusLetters();
}

void EraseWord() {
  brisi_rec();
  FocusLetters();
}

void ShowOptions() {
  if (frm_glavni->pic_media(media_picture::pane).Visible() && !glavni.media_fajl.empty())
    zatvori_media();
  prikazi_opcije();
}

void Help() {
  if (glavni.jezik == 0) return OpenManual();
  if (glavni.pomoc_otvorena == 1)
    zatvori_pomoc();
  else
    otvori_pomoc();
}

}  // namespace

void komanda_glavni(int index) {
  switch (index) {
    case command::load:
      return otvori_dijalog(0);
    case command::save:
      return Save();
    case command::end:
      return kraj();
    case command::solve:
      return SolveWord();
    case command::erase:
      return EraseWord();
    case command::options:
      return ShowOptions();
    case command::help:
      return Help();
    default:
      return;
  }
}

}  // namespace kalvon
