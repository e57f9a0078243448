// SPDX-License-Identifier: MIT
#include "document/crossword_save.h"

#include "crossword/writing.h"
#include "document/crossword_state.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {

void snimi_ukrstenicu() {
  const toolkit::Hourglass hourglass;
  WriteCrossword(glavni);
}

}  // namespace kalvon
