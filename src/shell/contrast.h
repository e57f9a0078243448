// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Gives windows and pictures the contrast of the user's choice, and draws them anew.
void primeni_kontrast();

}  // namespace kalvon
