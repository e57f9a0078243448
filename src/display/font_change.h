// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Chooses the font by the options, gives it to the controls and repaints grid and lists. Goes on
/// after every failure.
void primeni_font();

}  // namespace kalvon
