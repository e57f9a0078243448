// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"

namespace kalvon::exchange {

bool IsJpz(std::string_view bytes);
Puzzle ReadJpz(std::string_view bytes, Remarks& remarks);
std::string WriteJpz(const Puzzle& puzzle, Remarks& remarks);

}  // namespace kalvon::exchange
