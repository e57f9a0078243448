// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Writes the solved state into the crossword's own files. A file that cannot be rewritten stays as
/// it is, without a word.
void snimi_ukrstenicu();

}  // namespace kalvon
