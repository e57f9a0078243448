// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace kalvon {

// The file of a medium lies in the program's folder for as long as it is on show. Its name comes
// from a crossword that a stranger wrote, so not every name may be written and deleted there.

/// Whether the name is a bare file name that ends as a medium's does, and not the settings file's.
/// Nothing else is ever written: the host reads files of other names where a program lies.
bool MayNameMedium(std::string_view name);

/// Whether the file of a path is a medium in the program's folder, to be deleted when it is no
/// longer on show.
bool IsTemporaryMedium(std::string_view path);

}  // namespace kalvon
