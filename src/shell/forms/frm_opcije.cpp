// SPDX-License-Identifier: MIT
#include "shell/forms/frm_opcije.h"

namespace kalvon {

toolkit::FormHandle<FrmOpcije> frm_opcije;

namespace {

using toolkit::ControlSheet;

const ControlSheet command_buttons[] = {
    {"cmd_opcije", {150, 330, 315, 315}, 3, "\xFC", 2},
    {"cmd_opcije", {165, 705, 315, 315}, 5, "\xFC", 3},
    {"cmd_opcije", {165, 1080, 315, 315}, 7, "\xFC", 4},
    {"cmd_opcije", {165, 1455, 315, 315}, 9, "\xFC", 5},
};

const ControlSheet command_labels[] = {
    {"Label1", {570, 360, 1260, 255}, 4, "Bri{i sve re~i", 0},
    {"Label1", {570, 735, 1275, 255}, 6, "Re{i sve re~i", 1},
    {"Label1", {570, 1110, 1995, 255}, 8, "Broj pogre{nih slova", 2},
    {"Label1", {570, 1485, 1980, 255}, 10, "Bri{i pogre{na slova", 3},
};

const ControlSheet statistics_labels[] = {
    {"Label1", {195, 330, 990, 255}, 12, "Dimenzije:", 4},
    {"Label1", {195, 615, 1785, 255}, 18, "Ukupan broj polja:", 10},
    {"Label1", {200, 930, 1530, 255}, 16, "Broj crnih polja:", 8},
    {"Label1", {180, 1260, 1890, 255}, 17, "^ista (ostala) polja:", 9},
    {"Label1", {180, 1590, 1680, 255}, 13, "Ukupan broj re~i:", 5},
    {"Label1", {195, 1905, 2010, 255}, 14, "Broj vodoravnih re~i:", 6},
    {"Label1", {195, 2250, 1890, 255}, 15, "Broj uspravnih re~i:", 7},
};

void SetFont(auto& control, const char* name, double points) {
  control.FontName(name);
  control.FontSize(points);
}

}  // namespace

FrmOpcije::FrmOpcije()
    : Form({.name = "frm_opcije",
            .caption = "Opcije",
            .border = toolkit::Border::fixed_dialog,
            .scale = toolkit::Scale::twips,
            .inner_width = 3555,
            .inner_height = 5220}),
      Label2((frm_opcije.Add(*this, {"frm_opcije", {135, 60, 3300, 1890}, 0, "Ukr{tenica", 0})),
             {"Label2", {2730, 1140, 450, 240}, 11}) {
  auto& puzzle = frm_opcije(0);
  auto& statistics =
      frm_opcije.Add(*this, {"frm_opcije", {120, 1980, 3315, 2640}, 1, "Statistika", 1});
  auto& settings = frm_opcije.Add(*this, {"frm_opcije", {2880, 3360, 3285, 1395}, 19, "", 2});
  SetFont(puzzle, "Kalvon", 11.25);
  SetFont(statistics, "Kalvon", 11.25);
  SetFont(settings, "Kalvon", 12);
  settings.Visible(false);

  for (const ControlSheet& sheet : command_buttons) {
    auto& button = cmd_opcije.Add(puzzle, sheet);
    SetFont(button, "Wingdings", 14.25);
    button.FontBold(true);
    button.Charset(2);
  }
  cmd_opcije.Add(*this, {"cmd_opcije", {1260, 4710, 990, 390}, 2, "&Dalje", 0});

  for (const ControlSheet& sheet : command_labels) Label1.Add(puzzle, sheet);
  for (const ControlSheet& sheet : statistics_labels) Label1.Add(statistics, sheet);
  Label1.ForEach([](toolkit::Label& label) {
    SetFont(label, "Kalvon", 12);
    label.AutoSize(true);
  });
  Label2.Boxed();
  Label2.Align(toolkit::Alignment::center);
  Label2.FontSize(9.75);

  auto& script = frm_opcije1.Add(settings, {"frm_opcije1", {120, 150, 3045, 555}, 21, "Pismo", 1});
  auto& layout =
      frm_opcije1.Add(settings, {"frm_opcije1", {120, 720, 3045, 555}, 20, "Kodni raspored", 0});
  SetFont(script, "Kalvon", 12);
  SetFont(layout, "Kalvon", 12);
  opt_opcije.Add(script, {"opt_opcije", {240, 240, 1095, 255}, 23, " ]irilica", 0});
  opt_opcije.Add(script, {"opt_opcije", {1410, 240, 1125, 255}, 22, "Latinica", 1});
  opt_opcije1.Add(layout, {"opt_opcije1", {240, 270, 1215, 225}, 24, "YU ASCII", 0});
  opt_opcije1.Add(layout, {"opt_opcije1", {1440, 270, 1455, 225}, 25, "Unikod", 1});
  opt_opcije.ForEach([](auto& option) { SetFont(option, "Kalvon", 12); });
  SetFont(opt_opcije1(0), "Kalvon", 11.25);
  SetFont(opt_opcije1(1), "Kalvon", 12);
  opt_opcije(script::cyrillic).Value(true);
  opt_opcije1(layout::code_page).Value(true);
}

}  // namespace kalvon
