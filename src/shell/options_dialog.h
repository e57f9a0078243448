// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Places the frames of the options form by their heights, one under the other.
void LayOutOptions();

/// Fills the statistics and opens the options form.
void prikazi_opcije();

/// Closes the options form.
void sakrij_opcije();

/// A button of the options form, by its index. Any other index does nothing.
void komanda_opcije(int index);

}  // namespace kalvon
