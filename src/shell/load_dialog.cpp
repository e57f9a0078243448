// SPDX-License-Identifier: MIT
#include "shell/load_dialog.h"

#include <string>
#include <string_view>

#include "crossword/fields.h"
#include "crossword/header.h"
#include "display/letter_boxes.h"
#include "document/crossword_state.h"
#include "files/host_paths.h"
#include "files/text_file.h"
#include "multimedia/media_pane.h"
#include "shell/crossword_opening.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {

namespace {

using files::pass_over;

constexpr int load_mode = 1;
constexpr int save_mode = 2;

/// Runs one statement of the navigation. If it fails, the drive list goes back to the program's own
/// drive, and the next statement follows.
template <typename Statement>
void OrBackToOwnDrive(Statement statement) {
  if (pass_over(statement) != 0)
    pass_over([] { frm_ucit_snimi->Drive1.Drive(glavni.app_staza.substr(0, 3)); });
}

void UseEnglishCaptions() {
  auto& dialog = *frm_ucit_snimi;
  dialog.cmd_ucit(0).Caption("OK");
  dialog.cmd_ucit(1).Caption("CANCEL");
  dialog.Frame1.FontName(glavni.font_ime);
  dialog.Frame1.Caption("Crossword description");
  dialog.lbl_ucit.FontName(glavni.font_ime);
}

/// What stands behind the first ":" of a line, without the blanks around it; a line with no ":" is
/// its own value.
std::string ValueOf(const std::string& line) {
  // Where no ":" is found, what follows begins at the start.
  return std::string(Trimmed(std::string_view(line).substr(line.find(':') + 1)));
}

std::string Description(const Header& header) {
  const bool serbian = glavni.jezik == 0;
  const auto value = [&](std::size_t line) { return ValueOf(header[line - 1]); };
  const auto marked = [&](std::size_t line) { return DecimalValue(value(line)) > 0; };
  std::string rows = (serbian ? "Naziv: " : "Name: ") + value(2);
  rows += (serbian ? "\rDimenzije:  " : "\rDimensions:  ") + value(3);
  if (serbian) {
    const bool across = marked(6) || marked(8);
    const bool down = marked(7) || marked(9);
    if (across) rows += "\rUkr{tenica u 'horizontalnim' nastavcima";
    if (down) rows += "\rUkr{tenica u 'vertikalnim' nastavcima";
    if (across || down) rows += "\rNastavak broj: " + value(5);
  }
  rows += (serbian ? "\rOpis: " : "\rBrief Description: ") + value(4);
  return rows;
}

}  // namespace

void otvori_dijalog(int mode) {
  auto& dialog = *frm_ucit_snimi;
  const bool loading = mode == 0;
  const bool serbian = glavni.jezik == 0;
  if (loading)
    dialog.Caption(serbian ? "Ucitavanje ukrstenice" : "Load crossword");
  else
    dialog.Caption(serbian ? "Snimanje ukrstenice" : "Save crossword");
  dialog.txt_ucit.Enabled(!loading);
  glavni.dijalog_rezim = loading ? load_mode : save_mode;
  if (!serbian) UseEnglishCaptions();

  dialog.Show();
  frm_glavni->Enabled(false);
  dialog.File1.SetFocus();
  if (dialog.File1.ListCount() > 0)
    dialog.File1.ListIndex(0);
  else
    dialog.Dir1.SetFocus();
}

void zatvori_dijalog() {
  frm_glavni->Enabled(true);
  frm_glavni->Show();
  frm_ucit_snimi->Hide();
  FocusLetters();
}

void dijalog_komanda(int index) {
  if (index == 0) {
    zatvori_media();
    ucitaj_ukrstenicu();
    zatvori_dijalog();
  } else if (index == 1) {
    zatvori_dijalog();
  }
}

void dijalog_navigacija(int list) {
  auto& dialog = *frm_ucit_snimi;
  switch (list) {
    case 0:
      OrBackToOwnDrive([&] { dialog.Dir1.Path(dialog.Drive1.Drive()); });
      [[fallthrough]];
    case 1:
      OrBackToOwnDrive([&] { dialog.File1.Path(dialog.Dir1.Path()); });
      dialog.txt_ucit.Text("");
      break;
    case 2:
      dialog.txt_ucit.Text(dialog.File1.List(dialog.File1.ListIndex()));
      break;
    default:
      break;
  }
}

void RereadFolder() {
  auto& dialog = *frm_ucit_snimi;
  const std::string chosen = dialog.txt_ucit.Text();
  OrBackToOwnDrive([&] { dialog.Dir1.Path(dialog.Dir1.Path()); });
  OrBackToOwnDrive([&] { dialog.File1.Path(dialog.Dir1.Path()); });
  dialog.txt_ucit.Text("");
  for (int row = 0; row < dialog.File1.ListCount(); ++row)
    if (dialog.File1.List(row) == chosen) dialog.File1.ListIndex(row);
}

void opis_fajla() {
  if (glavni.dijalog_rezim != load_mode) return;
  auto& dialog = *frm_ucit_snimi;
  dialog.lbl_ucit.Caption("");
  if (dialog.txt_ucit.Text().empty()) return;
  glavni.ukr_staza = files::WithBackslash(dialog.Dir1.Path()) + dialog.txt_ucit.Text();

  Header header;
  pass_over([&] {
    files::TextReader file(glavni.ukr_staza, files::as_the_first_line);
    for (std::string& line : header) line = file.Line();
  });
  dialog.lbl_ucit.Caption(Description(header));
}

void ucitaj_iz(const std::string& path) {
  auto& dialog = *frm_ucit_snimi;
  glavni.dijalog_rezim = load_mode;
  const std::size_t name = path.rfind('\\') + 1;
  const int failure = pass_over([&] {
    dialog.Drive1.Drive(path.substr(0, 3));
    dialog.Dir1.Path(path.substr(0, name));
    dialog.File1.Path(dialog.Dir1.Path());
  });
  if (failure == 0) dialog.txt_ucit.Text(path.substr(name));
  zatvori_media();
  ucitaj_ukrstenicu();
  FocusLetters();
}

}  // namespace kalvon
