// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/windows/form.h"

namespace kalvon {

/// Carries the link to the web browser; it is never shown.
class FrmHelp : public toolkit::Form {
 public:
  FrmHelp();

  toolkit::TextBox txtURL;
  toolkit::Label Label1;
  toolkit::Button Command1;
  toolkit::TextBox DDEText;
  toolkit::Button Command2;
};

extern toolkit::FormHandle<FrmHelp> frm_help;

}  // namespace kalvon
