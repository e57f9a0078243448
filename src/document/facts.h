// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Counts the letters anew, and compares them with those in the files: after each change of either,
/// and after the news of it. These also tell, once, that the journal cannot be kept.
void UpdateFacts();

}  // namespace kalvon
