// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"

namespace kalvon::exchange {

bool IsIpuz(std::string_view bytes);
Puzzle ReadIpuz(std::string_view bytes, Remarks& remarks);
std::string WriteIpuz(const Puzzle& puzzle, Remarks& remarks);

}  // namespace kalvon::exchange
