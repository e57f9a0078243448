// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/frame.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/windows/form.h"

namespace kalvon {

/// Indexes of `opt_opcije`.
namespace script {
inline constexpr int cyrillic = 0;
inline constexpr int latin = 1;
}  // namespace script

/// Indexes of `opt_opcije1`.
namespace layout {
inline constexpr int yu_ascii = 0;
inline constexpr int code_page = 1;
}  // namespace layout

/// Indexes of `cmd_opcije`.
namespace option_command {
inline constexpr int go_on = 0;
inline constexpr int erase_all = 2;
inline constexpr int solve_all = 3;
inline constexpr int count_wrong = 4;
inline constexpr int erase_wrong = 5;
}  // namespace option_command

/// Indexes of `Label1` whose captions end in a figure.
namespace statistics {
inline constexpr int dimensions = 4;
inline constexpr int words = 5;
inline constexpr int words_across = 6;
inline constexpr int words_down = 7;
inline constexpr int black_cells = 8;
inline constexpr int clean_cells = 9;
inline constexpr int cells = 10;
}  // namespace statistics

/// Options, commands on the whole puzzle, and its statistics.
class FrmOpcije : public toolkit::Form {
 public:
  FrmOpcije();

  toolkit::ControlArray<toolkit::Frame> frm_opcije;
  toolkit::ControlArray<toolkit::Frame> frm_opcije1;
  toolkit::ControlArray<toolkit::Button> cmd_opcije;
  toolkit::ControlArray<toolkit::Label> Label1;
  toolkit::Label Label2;
  toolkit::ControlArray<toolkit::OptionButton> opt_opcije;
  toolkit::ControlArray<toolkit::OptionButton> opt_opcije1;
};

extern toolkit::FormHandle<FrmOpcije> frm_opcije;

}  // namespace kalvon
