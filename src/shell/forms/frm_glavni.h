// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/button.h"
#include "shell/toolkit/control_array.h"
#include "shell/toolkit/form.h"
#include "shell/toolkit/label.h"
#include "shell/toolkit/media_control.h"
#include "shell/toolkit/picture_box.h"
#include "shell/toolkit/scroll_bar.h"
#include "shell/toolkit/text_box.h"

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
