// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon {

/// A Serbian text of the program, in UTF-8, in the other script. The texts are written in Latin;
/// between two "`" stands what stays Latin in Cyrillic too: names of keys and of files. The marks
/// themselves are left out.
std::string InScript(std::string_view text, bool latin);

}  // namespace kalvon
