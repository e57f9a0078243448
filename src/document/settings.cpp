// SPDX-License-Identifier: MIT
#include "document/settings.h"

#include <array>
#include <string>

#include "crossword/fields.h"
#include "crossword/media_table.h"
#include "display/fonts.h"
#include "document/crossword_state.h"
#include "files/file_rewrite.h"
#include "files/text_file.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {
namespace {

constexpr auto temporary_name = "m_kalvon_ini.tmp";

/// Title, folder, script, keyboard layout; empty from the first one that cannot be read.
using Lines = std::array<std::string, 4>;

Lines ReadLines() {
  Lines lines;
  files::pass_over([&] {
    files::TextReader file(glavni.app_staza + std::string(settings_name));
    for (std::string& line : lines) line = file.Line();
  });
  return lines;
}

void WriteLines(const Lines& lines) {
  files::FileRewrite file(glavni.app_staza + std::string(settings_name), temporary_name);
  for (const std::string& line : lines) file.PrintLine(line);
  file.Commit();
}

void ChooseScript(int index) { frm_opcije->opt_opcije(index).Value(true); }
void ChooseLayout(int index) { frm_opcije->opt_opcije1(index).Value(true); }

/// The text behind the name of a setting.
std::string ValueOf(const std::string& line) { return std::string(Behind(line, ':')); }

}  // namespace

void ucitaj_ini() {
  const Lines lines = ReadLines();
  files::pass_over([&] { frm_ucit_snimi->Dir1.Path(ValueOf(lines[1])); });
  if (glavni.jezik == 0) {
    const bool cyrillic = ValueOf(lines[2]) == "Cirilica";
    files::pass_over([&] { ChooseScript(cyrillic ? script::cyrillic : script::latin); });
    const bool code_page = ValueOf(lines[3]) == "Unikod";
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
    Lines lines = {"Vostrand Kalvon Multimedia", "Staza:" + frm_ucit_snimi->Dir1.Path(),
                   cyrillic ? "Pismo:Cirilica" : "Pismo:Latinica",
                   yu_ascii ? "Tastatura:YU ASCII" : "Tastatura:Unikod"};
    // The English program has no choice of script and layout: it keeps that of the Serbian one.
    const Lines kept = glavni.jezik == 0 ? Lines() : ReadLines();
    if (!kept[2].empty()) lines[2] = kept[2];
    if (!kept[3].empty()) lines[3] = kept[3];
    WriteLines(lines);
  });
}

}  // namespace kalvon
