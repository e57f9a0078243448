// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "converter/options.h"

namespace kalvon::converter {

/// Converts one file, or the standard input, and tells remarks and errors on the standard error,
/// one a line. Whether it went well; if not, nothing has been written.
bool Convert(const std::string& source, const std::string& target, const Options& options);

/// The ending that says what is written to a target.
std::string TargetEnding(const std::string& target, const Options& options);

/// The target for a source in the options' folder.
std::string TargetInFolder(const std::string& source, const Options& options);

/// Tells a remark: "file:row,column: text".
void Tell(const std::string& file, const exchange::Remark& remark);

}  // namespace kalvon::converter
