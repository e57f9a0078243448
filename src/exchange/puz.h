// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"

namespace kalvon::exchange {

bool IsPuz(std::string_view bytes);
Puzzle ReadPuz(std::string_view bytes, Remarks& remarks);
std::string WritePuz(const Puzzle& puzzle, Remarks& remarks);

}  // namespace kalvon::exchange
