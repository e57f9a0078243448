// SPDX-License-Identifier: MIT
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {

toolkit::FormHandle<FrmUcitSnimi> frm_ucit_snimi;

FrmUcitSnimi::FrmUcitSnimi()
    : Form({.name = "frm_ucit_snimi",
            .caption = "Form1",
            .border = toolkit::Border::fixed_dialog,
            .scale = toolkit::Scale::twips,
            .inner_width = 5370,
            .inner_height = 5040}),
      Drive1(*this, {"Drive1", {150, 2040, 2685, 315}, 0}),
      Dir1(*this, {"Dir1", {180, 510, 2655, 1380}, 1}),
      File1(*this, {"File1", {2940, 510, 2295, 1260}, 2}),
      txt_ucit(*this, {"txt_ucit", {180, 150, 2655, 285}, 5}),
      Frame1(*this, {"Frame1", {150, 2520, 5055, 2340}, 6, "Parametri ukr{tenice"}),
      lbl_ucit(Frame1, {"lbl_ucit", {150, 270, 4725, 1890}, 7}),
      pic_status(*this, {"pic_status", {2940, 150, 2280, 285}, 8}) {
  cmd_ucit.Add(*this, {"cmd_ucit", {2940, 2010, 1100, 360}, 3, "&Dalje", 0});
  cmd_ucit.Add(*this, {"cmd_ucit", {4140, 2010, 1100, 360}, 4, "&Prekid", 1});
  txt_ucit.MaxLength(16);
  Frame1.FontName("Kalvon");
  Frame1.FontSize(9.75);
  lbl_ucit.FontName("Kalvon");
  lbl_ucit.FontSize(11.25);
  pic_status.BackColor(0xFFFFFF);
  pic_status.Framed();
  pic_status.Persistent(false);
}

}  // namespace kalvon
