// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/frame.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/input/file_lists.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/windows/form.h"

namespace kalvon {

/// The load dialog, which could save as well.
class FrmUcitSnimi : public toolkit::Form {
 public:
  FrmUcitSnimi();

  toolkit::DriveList Drive1;
  toolkit::FolderList Dir1;
  toolkit::FileList File1;
  toolkit::ControlArray<toolkit::Button> cmd_ucit;
  toolkit::TextBox txt_ucit;
  toolkit::Frame Frame1;
  toolkit::Label lbl_ucit;
  toolkit::PictureBox pic_status;
};

extern toolkit::FormHandle<FrmUcitSnimi> frm_ucit_snimi;

}  // namespace kalvon
