// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "converter/options.h"

namespace kalvon::converter {

/// The bytes of a picture of a crossword with the user's letters: a page of A4 or more, pdf, svg or
/// png by the ending. Needs a QGuiApplication. ConversionError for a png that would be too large.
std::string PictureOf(const exchange::HeadedCrossword& headed, std::string_view ending,
                      const Options& options);

}  // namespace kalvon::converter
