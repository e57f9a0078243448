// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Prints a clue in its shown form below what the list (1 across, 2 down) holds, in as many rows as
/// it takes, with the icon of its medium beside the first. Returns the number of rows.
int PrintClue(int strana, const std::string& text, const std::string& media);

}  // namespace kalvon
