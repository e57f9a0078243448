// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/remark.h"

namespace kalvon::exchange {

/// Looks whether the crossword of a file is whole, with its installments and packs: cells, starts,
/// clues, media, names. A pack is looked at with its crossword. A file of another format is read
/// strictly.
void Check(const std::string& path, Remarks& remarks);

}  // namespace kalvon::exchange
