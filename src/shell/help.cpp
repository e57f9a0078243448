// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include "document/crossword_state.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"
#include "shell/browser_link.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_help.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {

namespace {

void EnableCommands(bool enabled) {
  for (const int index : command::on_crossword) frm_glavni->cmd_glavni(index).Enabled(enabled);
}

}  // namespace

void OpenManual(const std::string& page) {
  const std::string shipped = files::WithBackslash(toolkit::App::Folders().shipped);
  frm_help->txtURL.Text(files::LowerCase(shipped) + "uputstvo\\" + page);
  pokreni_browser(frm_help->txtURL.Text());
}

void ShowKeys() {
  if (glavni.jezik == 0)
    OpenManual("tastatura.htm");
  else
    otvori_pomoc();
}

void otvori_pomoc() {
  auto& form = *frm_glavni;
  form.txt_rec1.Left(form.pic_ukr.Left());
  form.txt_rec1.Top(form.pic_ukr.Top());
  form.txt_rec1.Visible(true);
  EnableCommands(false);
  form.cmd_glavni(command::load).Enabled(false);
  glavni.pomoc_otvorena = 1;
  form.txt_rec1.SetFocus();
}

void zatvori_pomoc() {
  frm_glavni->txt_rec1.Visible(false);
  if (glavni.pre_ucitavanja == 0) EnableCommands(true);
  frm_glavni->cmd_glavni(command::load).Enabled(true);
  glavni.pomoc_otvorena = 0;
}

}  // namespace kalvon
