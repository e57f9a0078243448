// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Command of a button of the main form: 0 load, 1 save, 2 end, 3 solve, 4 erase, 5 options, 6
/// help. Any other index does nothing.
void komanda_glavni(int index);

}  // namespace kalvon
