// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// A click on the grid picture, in pixels from its top left corner: selects a word through the cell
/// that was hit, and closes the multimedia pane. A cell without a letter selects nothing, and the
/// word on record stays.
void klik_polje(double x, double y);

}  // namespace kalvon
