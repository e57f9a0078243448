// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// A click on a clue list: selects the word of the clue at pixel row y. `index` is 0 across, 1
/// down; `button` 1 left, 2 right, which also opens a multimedia clue.
void klik_pitanje(int index, int button, double x, double y);

}  // namespace kalvon
