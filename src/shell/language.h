// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Language of the interface that this executable is built for: 0 Serbian, 1 English.
int ProgramLanguage();

}  // namespace kalvon
