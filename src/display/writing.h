// SPDX-License-Identifier: MIT
#pragma once

#include "letters/letter_conversion.h"

namespace kalvon {

/// How letters are shown and typed now. The option buttons are the only memory of script and
/// layout, so every procedure asks anew.
Writing ChosenWriting();

}  // namespace kalvon
