// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string_view>

namespace kalvon::exchange {

/// The text of an XML file, by its byte order mark, its first bytes or its declaration.
/// ConversionError for a file that declares entities or attributes, with which it could grow
/// without bounds, or in which one tag has more attributes than any of a crossword.
QString XmlText(std::string_view bytes);

}  // namespace kalvon::exchange
