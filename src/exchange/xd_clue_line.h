// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "exchange/xd_sections.h"

namespace kalvon::exchange {

/// A line about a clue: "A12. Text ~ ANSWER" or, with a key, "A12 ^Media: name".
struct XdClueLine {
  QChar group;         ///< 'A', 'D' or another capital; null for a clue of both directions.
  QStringView number;  ///< Its digits.
  QStringView key;     ///< Empty for the clue itself.
  QStringView rest;    ///< What follows the stop or the colon.
};

/// Nothing for a line that is none.
std::optional<XdClueLine> ClueLineOf(const XdLine& line);

}  // namespace kalvon::exchange
