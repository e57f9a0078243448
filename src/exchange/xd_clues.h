// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/puzzle.h"
#include "exchange/xd_sections.h"

namespace kalvon::exchange {

/// The clues of a section, and the blanks of their answers. A clue whose number the grid lacks
/// gets no cell. Remarks for lines that are no clues and for answers that differ from the grid.
void ReadXdClues(const std::vector<XdLine>& lines, QChar split, Puzzle& puzzle, Remarks& remarks);

}  // namespace kalvon::exchange
