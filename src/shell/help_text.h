// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// The text of the help panel of the English program, a paragraph a line. Lines are closed by CR
/// LF.
std::string HelpText();

}  // namespace kalvon
