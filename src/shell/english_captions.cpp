// SPDX-License-Identifier: MIT
#include "shell/english_captions.h"

#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/help_text.h"

namespace kalvon {

namespace {

/// The caption of the control of an array with that index.
struct Caption {
  int index;
  const char* text;
};

constexpr Caption frames[] = {{0, "Crossword"}, {1, "Basic statistic"}};

constexpr Caption option_labels[] = {{0, "Erase all words"},
                                     {1, "Solve puzzle"},
                                     {2, "No. of incorrect letters"},
                                     {3, "Erase incorrect letters"},
                                     {4, "Dimensions:"},
                                     {5, "Total no. of words:"},
                                     {6, "No. of horizontal words:"},
                                     {7, "No. of vertical words:"},
                                     {8, "No. of black fields:"},
                                     {9, "No. of active fields:"},
                                     {10, "Total no. of fields:"}};

constexpr Caption commands[] = {{command::load, "&Load"},   {command::save, "&Save"},
                                {command::end, "E&xit"},    {command::solve, "S&olve"},
                                {command::erase, "&Erase"}, {command::options, "&Options"},
                                {command::help, "&Help"}};

constexpr Caption headings[] = {{0, "Across"}, {1, "Down"}};

constexpr double option_points = 10;

void WriteOptions(FrmOpcije& form) {
  form.Caption("Options");
  for (const Caption& caption : frames) {
    form.frm_opcije(caption.index).FontName(glavni.font_ime);
    form.frm_opcije(caption.index).Caption(caption.text);
  }
  for (const Caption& caption : option_labels) {
    auto& label = form.Label1(caption.index);
    label.FontName(glavni.font_ime);
    label.FontSize(option_points);
    label.Caption(caption.text);
  }
  form.cmd_opcije(option_command::go_on).FontName(glavni.font_ime);
  form.cmd_opcije(option_command::go_on).Caption("OK");
}

void WriteMainForm(FrmGlavni& form) {
  for (const Caption& caption : commands) {
    // In the national font an x would be a dž.
    form.cmd_glavni(caption.index).FontName(glavni.font_ime);
    form.cmd_glavni(caption.index).Caption(caption.text);
  }
  for (const Caption& caption : headings) form.Label1(caption.index).Caption(caption.text);
  form.txt_rec1.FontName(glavni.font_ime);
  form.txt_rec1.Text(HelpText());
}

}  // namespace

void WriteEnglishCaptions() {
  WriteOptions(*frm_opcije);
  WriteMainForm(*frm_glavni);
}

}  // namespace kalvon
