// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/storing.h"

namespace kalvon::exchange {

// Files, by paths of the host in UTF-8.

/// What a file holds. ConversionError for one that cannot be read, or is too large.
std::string BytesOf(const std::string& path);

/// A crossword of any format: that of this program by its name, each other by its content. The
/// installments of a crossword of this program are joined. ConversionError.
HeadedCrossword ReadCrosswordFile(const std::string& path, const Storing& storing,
                                  Remarks& remarks);

/// The same for bytes without a name.
HeadedCrossword ReadCrosswordBytes(const std::string& bytes, const Storing& storing,
                                   Remarks& remarks);

/// Writes a file, whole or not at all; an old one goes. ConversionError.
void WriteBytes(const std::string& path, const std::string& bytes);

/// The ending of a name, in small letters and without the dot; empty for none.
std::string EndingOf(const std::string& path);

/// Whether the path names a crossword of this program.
inline bool IsQvm(const std::string& path) { return EndingOf(path) == "qvm"; }

}  // namespace kalvon::exchange
