// SPDX-License-Identifier: MIT
#include "document/settings.h"

#include "crossword/settings_file.h"
#include "display/fonts.h"
#include "document/crossword_state.h"
#include "files/run_time_error.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/toolkit/desktop/host_settings.h"

namespace kalvon {
namespace {

/// A choice, and its name.
struct Choice {
  const char* name;
  bool CrosswordState::*value;
};

constexpr Choice choices[] = {{"only_word", &CrosswordState::bira_jedinu},
                              {"write_typed", &CrosswordState::upis_u_hodu},
                              {"show_time", &CrosswordState::vreme_u_traci},
                              {"all_keyboards", &CrosswordState::sve_tastature},
                              {"high_contrast", &CrosswordState::visok_kontrast}};

void ChooseScript(int index) { frm_opcije->opt_opcije(index).Value(true); }
void ChooseLayout(int index) { frm_opcije->opt_opcije1(index).Value(true); }

}  // namespace

void ucitaj_ini() {
  const Settings settings = ReadSettings(glavni.app_staza);
  files::pass_over([&] { frm_ucit_snimi->Dir1.Path(ValueOf(settings.folder)); });
  if (glavni.jezik == 0) {
    const bool cyrillic = ValueOf(settings.script) == "Cirilica";
    files::pass_over([&] { ChooseScript(cyrillic ? script::cyrillic : script::latin); });
    const bool code_page = ValueOf(settings.layout) == "Unikod";
    files::pass_over([&] { ChooseLayout(code_page ? layout::code_page : layout::yu_ascii); });
    return;
  }
  files::pass_over([] { ChooseLayout(layout::yu_ascii); });
  files::pass_over([] { ChooseScript(script::latin); });
  files::pass_over([] { postavi_charset(); });
}

void snimi_ini() {
  const bool cyrillic = frm_opcije->opt_opcije(script::cyrillic).Value();
  const bool yu_ascii = frm_opcije->opt_opcije1(layout::yu_ascii).Value();
  files::pass_over([&] {
    Settings settings = {.title = "Vostrand Kalvon Multimedia",
                         .folder = "Staza:" + frm_ucit_snimi->Dir1.Path(),
                         .script = cyrillic ? "Pismo:Cirilica" : "Pismo:Latinica",
                         .layout = yu_ascii ? "Tastatura:YU ASCII" : "Tastatura:Unikod"};
    // The English program has no choice of script and layout: it keeps that of the Serbian one.
    const Settings kept = glavni.jezik == 0 ? Settings() : ReadSettings(glavni.app_staza);
    if (!kept.script.empty()) settings.script = kept.script;
    if (!kept.layout.empty()) settings.layout = kept.layout;
    WriteSettings(glavni.app_staza, settings);
  });
}

void ucitaj_izbor() {
  for (const auto& [name, value] : choices) glavni.*value = toolkit::GetSetting(name, 0) != 0;
}

void snimi_izbor() {
  for (const auto& [name, value] : choices) toolkit::SaveSetting(name, glavni.*value ? 1 : 0);
}

}  // namespace kalvon
