// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Lets assistive technology ask for what the grid and the clue lists show, and press it.
void DescribePictures();

/// Tells it of what has changed, if somebody listens.
void TellPictures();

}  // namespace kalvon
