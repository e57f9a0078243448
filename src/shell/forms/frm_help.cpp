// SPDX-License-Identifier: MIT
#include "shell/forms/frm_help.h"

namespace kalvon {

toolkit::FormHandle<FrmHelp> frm_help;

FrmHelp::FrmHelp()
    : Form({.name = "frm_help",
            .caption = "Start a Browser with a URL",
            .border = toolkit::Border::sizeable,
            .scale = toolkit::Scale::twips,
            .inner_width = 5460,
            .inner_height = 2145}),
      txtURL(*this, {"txtURL", {360, 600, 4695, 375}, 0}),
      Label1(*this, {"Label1", {360, 360, 2055, 255}, 1, "URL to Start Browser with"}),
      Command1(*this, {"Command1", {720, 1320, 1815, 375}, 2, "&Start it"}),
      DDEText(*this, {"DDEText", {4800, 1800, 855, 375}, 3}),
      Command2(*this, {"Command2", {3000, 1320, 1695, 375}, 4, "E&xit"}) {
  txtURL.Text("about:blank");
  Command1.Default();
  DDEText.Visible(false);
}

}  // namespace kalvon
