// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// How many letter boxes there are. Those of a longer word slide over it.
inline constexpr int letter_boxes = 15;

/// Fills the letter boxes from the cells of the selected word and puts the focus on the first. Goes
/// on after every failure.
void prikazi_rec();

/// Letters of the word that is edited.
int LettersInEditor();

/// The letter, counted from 0, that a box shows; it may lie past the end of the word.
int LetterOfBox(int box);

/// Shows the letter of the editor in its box, if it has one now.
void ShowInBox(int letter);

/// Slides the boxes as little as gives the letter of `rec_poz` one, and puts the focus on that.
void FocusLetter();

/// The same, once there is a word and if the boxes can have the focus.
void FocusLetters();

}  // namespace kalvon
