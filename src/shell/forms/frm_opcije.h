// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/frame.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/windows/form.h"

namespace kalvon {

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
