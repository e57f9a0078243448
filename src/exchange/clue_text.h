// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "exchange/remark.h"

namespace kalvon::exchange {

/// A text (UTF-8) in the code of this program's crosswords: Serbian in 7-bit YU ASCII, English in
/// UTF-8. What the code lacks is replaced by what resembles it or by "?", and so are "$", which
/// would close a clue, and ";", which a file reads as a comma.
std::string CodedText(std::string_view text, bool english, Remarks& remarks);

/// The same for a clue, which must not begin as a multimedia clue does.
std::string CodedClue(std::string_view text, bool english, Remarks& remarks);

/// The text without the accents of its letters, as far as Unicode can take them off.
std::string WithoutAccents(std::string_view text);

}  // namespace kalvon::exchange
