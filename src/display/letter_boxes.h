// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// How many letter boxes there are. The letters of a longer word have boxes up to here only.
inline constexpr int letter_boxes = 15;

/// Fills the letter boxes from the cells of the selected word and puts the focus on the first. Goes
/// on after every failure.
void prikazi_rec();

/// Puts the focus on the letter box at which the word is edited, once there is a word.
void FocusLetters();

}  // namespace kalvon
