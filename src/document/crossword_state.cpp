// SPDX-License-Identifier: MIT
#include "document/crossword_state.h"

namespace kalvon {

CrosswordState glavni;

}  // namespace kalvon
