// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Takes the mark off the word of `pret_x1` to `pret_y2`; expects in `smer` the direction opposite
/// to that word's.
void ugasi_oznaku_reci();

/// Marks the selected word in a grid that was drawn anew.
void ShowMarkAnew();

/// Marks the selected word and fills the word editor. `poziv` is 1 after a click, which also
/// settles the direction and brings the word's clue to the head of its list, and 0 after a repaint.
void oznaci_rec(int poziv);

}  // namespace kalvon
