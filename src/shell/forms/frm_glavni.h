// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/events/timer.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/input/scroll_bar.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/media/media_control.h"
#include "shell/toolkit/windows/form.h"
#include "shell/toolkit/windows/strip.h"

namespace kalvon {

/// Indexes of `cmd_glavni`.
namespace command {
inline constexpr int load = 0;
inline constexpr int save = 1;
inline constexpr int end = 2;
inline constexpr int solve = 3;
inline constexpr int erase = 4;
inline constexpr int options = 5;
inline constexpr int help = 6;
/// Those that need a crossword.
inline constexpr int on_crossword[] = {save, solve, erase, options};
}  // namespace command

/// Indexes of `pic_media`: the icons of the kinds of media, the pane, and the display in it.
namespace media_picture {
inline constexpr int picture_icon = 0;
inline constexpr int text_icon = 1;
inline constexpr int sound_icon = 2;
inline constexpr int video_icon = 3;
inline constexpr int pane = 4;
inline constexpr int display = 5;
}  // namespace media_picture

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

  toolkit::Strip& strip;
  toolkit::Timer minute;  ///< Wakes up at a whole minute of the time spent on the crossword.
};

extern toolkit::FormHandle<FrmGlavni> frm_glavni;

}  // namespace kalvon
