// SPDX-License-Identifier: MIT
#include "document/crossword_save.h"

#include "crossword/writing.h"
#include "document/crossword_state.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {

void snimi_ukrstenicu() {
  toolkit::Screen::MousePointer(11);
  WriteCrossword(glavni);
  toolkit::Screen::MousePointer(0);
}

}  // namespace kalvon
