// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Counts the letters anew, and compares them with those in the files: after each change of either.
void UpdateFacts();

}  // namespace kalvon
