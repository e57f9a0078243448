// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon::converter {

/// Whether files of this ending can be written: crosswords of all formats, and pictures.
bool IsTargetEnding(std::string_view ending);

/// Whether the ending is that of a picture: pdf, svg or png.
bool IsPictureEnding(std::string_view ending);

/// All endings, divided by commas.
std::string TargetEndings();

}  // namespace kalvon::converter
