// SPDX-License-Identifier: MIT
#include "display/colours.h"

#include "document/crossword_state.h"

namespace kalvon {

Colours ShownColours() {
  if (!glavni.visok_kontrast) return {};
  // The mark is a strong yellow with black dashes.
  return {.block = 0x000000, .ruler = 0xFFFFFF, .mark = 0xFF0000, .dashes = 0x00FFFF};
}

}  // namespace kalvon
