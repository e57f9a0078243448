// SPDX-License-Identifier: MIT
#include "shell/language.h"

namespace kalvon {

int ProgramLanguage() { return 0; }

}  // namespace kalvon
