// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/input/scroll_bar.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/media/media_control.h"
#include "shell/toolkit/windows/form.h"

namespace kalvon {

/// The main form: commands, letter boxes, clue lists, grid, and the multimedia pane.
class FrmGlavni : public toolkit::Form {
 public:
  FrmGlavni();

  toolkit::ControlArray<toolkit::Button> cmd_glavni;
  toolkit::ControlArray<toolkit::TextBox> txt_rec;
  toolkit::ControlArray<toolkit::Label> lbl_rec;
  toolkit::ControlArray<toolkit::Label> Label1;
  toolkit::ControlArray<toolkit::PictureBox> pic_tekst;
  toolkit::ControlArray<toolkit::ScrollBar> scr_tekst;
  toolkit::ControlArray<toolkit::PictureBox> pic_brojevi;
  toolkit::PictureBox pic_ukr;
  toolkit::ScrollBar scr_ver;
  toolkit::ScrollBar scr_hor;
  toolkit::TextBox txt_rec1;
  toolkit::ControlArray<toolkit::PictureBox> pic_media;
  toolkit::ControlArray<toolkit::TextBox> txt_media;
  toolkit::MediaControl mm_media;
  toolkit::PictureBox pic_sirina;
  toolkit::Label lbl_sirina;
  toolkit::Label Label2;
};

extern toolkit::FormHandle<FrmGlavni> frm_glavni;

}  // namespace kalvon
