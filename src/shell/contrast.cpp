// SPDX-License-Identifier: MIT
#include "shell/contrast.h"

#include "display/colours.h"
#include "display/repaint.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {

void primeni_kontrast() {
  toolkit::HighContrast(glavni.visok_kontrast);
  frm_glavni->pic_brojevi.ForEach(
      [](toolkit::PictureBox& ruler) { ruler.BackColor(ShownColours().ruler); });
  iscrtaj_sve();
}

}  // namespace kalvon
