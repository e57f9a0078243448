// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/remark.h"

namespace kalvon {

// What was remarked when a crossword of another program was opened, or one was written.

/// The remark in the program's language and script, with its place.
std::string RemarkText(const exchange::Remark& remark);

/// Keeps remarks until the next ones.
void KeepRemarks(const exchange::Remarks& remarks);
bool HasRemarks();

/// Shows them all in a window of their own.
void pokazi_primedbe();

}  // namespace kalvon
