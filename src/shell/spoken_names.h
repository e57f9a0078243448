// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Names what shows no text of its own, for assistive technology, in the script of the options.
void NameControls();

}  // namespace kalvon
