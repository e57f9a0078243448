// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Command of a button of the main form, by its index. Any other index does nothing.
void komanda_glavni(int index);

}  // namespace kalvon
