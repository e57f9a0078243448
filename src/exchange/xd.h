// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/format.h"

namespace kalvon::exchange {

bool IsXd(std::string_view bytes);
Puzzle ReadXd(std::string_view bytes, Remarks& remarks);
std::string WriteXd(const Puzzle& puzzle, Remarks& remarks);

}  // namespace kalvon::exchange
