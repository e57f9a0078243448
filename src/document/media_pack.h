// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Cuts the file of the clicked clue out of its media pack and shows it.
void izvuci_media();

}  // namespace kalvon
