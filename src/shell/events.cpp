// SPDX-License-Identifier: MIT
#include "shell/events.h"

#include <string>
#include <vector>

#include "display/clue_lists.h"
#include "display/grid_scroll.h"
#include "display/repaint.h"
#include "document/crossword_state.h"
#include "document/time_spent.h"
#include "multimedia/media_pane.h"
#include "shell/browser_link.h"
#include "shell/commands.h"
#include "shell/file_opening.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_help.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/help.h"
#include "shell/load_dialog.h"
#include "shell/options_dialog.h"
#include "shell/spoken_pictures.h"
#include "shell/startup.h"
#include "shell/strip.h"
#include "shell/toolkit/windows/application.h"
#include "shell/zoom.h"
#include "solving/clue_selection.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

constexpr int enter = 13;

/// A click closes the pane, unless a video is running.
void ClickMediaPane() {
  if (glavni.media_tip != "avi") zatvori_media();
}

void BindMediaPane(FrmGlavni& form) {
  for (const int index : {media_picture::pane, media_picture::display})
    form.pic_media(index).Click = ClickMediaPane;
  form.pic_media.ForEach([](toolkit::PictureBox& picture) {
    picture.GotFocus = [] {
      // Once the window has lost the focus again there is no handle, and the old one stays.
      if (const int handle = toolkit::GetFocus(); handle != 0) glavni.media_hwnd = handle;
    };
  });
  form.txt_media.ForEach([](toolkit::TextBox& box) {
    box.Click = ClickMediaPane;
    box.KeyPress = [](int& character) { character = 0; };
  });
  form.mm_media.Done = [](int) {
    glavni.media_gotovo = 1;
    otvori_media();
  };
}

void BindMainForm(FrmGlavni& form) {
  form.Resize = [] { HoldSize(); };
  form.Rescaled = [] {
    iscrtaj_sve();
    ShowZoom();
  };
  form.FilesDropped = [](const std::vector<std::string>& paths) { otvori_fajl(paths.front()); };
  form.ZoomWheel = [](bool away) { away ? uvecaj() : umanji(); };
  form.Activate = nastavi_vreme;
  form.Deactivate = zastani_vreme;
  form.minute.Elapsed = meri_vreme;
  form.Unload = [](bool&) { komanda_glavni(command::end); };
  form.HostEnds = [] { prekini(); };
  form.cmd_glavni.ForEach([](toolkit::Button& button) {
    button.Click = [index = button.Index()] { komanda_glavni(index); };
  });
  form.pic_ukr.MouseDown = [](int, int, double x, double y) { klik_misem(x, y); };
  form.pic_tekst.ForEach([](toolkit::PictureBox& list) {
    list.MouseDown = [index = list.Index()](int button, int, double x, double y) {
      klik_pitanje(index, button, x, y);
    };
  });
  form.scr_hor.Change = [] { skrol_ukrstenica(0); };
  form.scr_ver.Change = [] { skrol_ukrstenica(1); };
  form.scr_tekst.ForEach([](toolkit::ScrollBar& bar) {
    bar.Change = [index = bar.Index()] {
      if (glavni.skrol_aktivan == 1) skrol_pitanja(index);
    };
  });
  form.txt_rec.ForEach([](toolkit::TextBox& box) {
    box.KeyDown = [index = box.Index()](int& key_code, int) {
      const int pressed = key_code;
      key_code = 0;
      unos_tastera(index, pressed);
    };
    box.Typed = primi_znak;
    box.KeyPress = [index = box.Index()](int& character) {
      const int typed = character;
      character = 0;
      unos_znaka(index, typed);
    };
  });
  form.txt_rec1.Change = [] { zatvori_pomoc(); };
  form.txt_rec1.DblClick = [] { zatvori_pomoc(); };
  form.txt_rec1.KeyPress = [](int& character) {
    character = 0;
    zatvori_pomoc();
  };
  BindMediaPane(form);
}

void BindLoadDialog(FrmUcitSnimi& form) {
  form.cmd_ucit.ForEach([](toolkit::Button& button) {
    button.Click = [index = button.Index()] { dijalog_komanda(index); };
  });
  form.Drive1.Change = [] { dijalog_navigacija(0); };
  form.Dir1.Change = [] { dijalog_navigacija(1); };
  form.File1.Click = [] { dijalog_navigacija(2); };
  form.File1.DblClick = [] { dijalog_komanda(0); };
  form.File1.KeyPress = [](int& character) {
    if (character == enter) dijalog_komanda(0);
  };
  form.txt_ucit.Change = [] { opis_fajla(); };
  form.Shortcut("F5") = [](bool&) { RereadFolder(); };
  form.Shortcut("Esc") = [](bool&) { zatvori_dijalog(); };
}

void BindOptions(FrmOpcije& form) {
  form.cmd_opcije.ForEach([](toolkit::Button& button) {
    button.Click = [index = button.Index()] { komanda_opcije(index); };
  });
  form.Shortcut("Esc") = [](bool&) { komanda_opcije(option_command::go_on); };
}

void BindHelp(FrmHelp& form) {
  form.Command1.Click = [&form] { pokreni_browser(form.txtURL.Text()); };
}

}  // namespace

void BindEvents() {
  toolkit::AfterEvents([] {
    UpdateStrip();
    TellPictures();
  });
  frm_glavni.Load = [](FrmGlavni& form) {
    BindMainForm(form);
    pokreni();
  };
  frm_ucit_snimi.Load = BindLoadDialog;
  frm_opcije.Load = BindOptions;
  frm_help.Load = BindHelp;
}

void UnloadForms() {
  toolkit::AfterEvents({});
  frm_help.Unload();
  frm_opcije.Unload();
  frm_ucit_snimi.Unload();
  frm_glavni.Unload();
}

}  // namespace kalvon
