// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Places the frames of the options form by their heights, one under the other.
void LayOutOptions();

/// Fills the statistics and opens the options form.
void prikazi_opcije();

/// Closes the options form.
void sakrij_opcije();

/// A button of the options form: 0 go on, 2 erase all, 3 solve all, 4 count wrong letters, 5 erase
/// wrong letters. Any other index does nothing.
void komanda_opcije(int index);

}  // namespace kalvon
