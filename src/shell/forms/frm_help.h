// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/button.h"
#include "shell/toolkit/form.h"
#include "shell/toolkit/label.h"
#include "shell/toolkit/text_box.h"

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
