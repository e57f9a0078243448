// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Moves the view to the value of a bar: 0 `scr_hor`, 1 `scr_ver`.
void skrol_ukrstenica(int bar);

}  // namespace kalvon
