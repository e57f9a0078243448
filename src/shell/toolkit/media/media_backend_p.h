// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

/// Chooses the library that plays, and looks whether it is installed: without it the first player
/// would end the program. It must be asked before all that uses Qt Multimedia.
bool MediaBackendIsThere();

}  // namespace toolkit
