// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/button.h"
#include "shell/toolkit/control_array.h"
#include "shell/toolkit/file_lists.h"
#include "shell/toolkit/form.h"
#include "shell/toolkit/frame.h"
#include "shell/toolkit/label.h"
#include "shell/toolkit/picture_box.h"
#include "shell/toolkit/text_box.h"

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
