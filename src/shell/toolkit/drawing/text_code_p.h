// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace toolkit {

/// How the 8-bit characters of a control become letters: by its font and its charset.
enum class TextCode {
  host,               ///< The host's own encoding, UTF-8.
  windows_1250,       ///< Central European.
  windows_1251,       ///< Cyrillic.
  national_latin,     ///< 7-bit YU ASCII, shown in Latin letters.
  national_cyrillic,  ///< 7-bit YU ASCII, shown in Cyrillic letters.
  signs               ///< The sign font, of which the check mark is used.
};

TextCode TextCodeOf(std::string_view font_name, int charset);

QString Decode(std::string_view text, TextCode code);

/// The text in 8-bit characters; one that the code does not hold becomes "?".
std::string Encode(const QString& text, TextCode code);

/// Code of a typed character, or that of "?" if the code page does not hold it. The host's own
/// encoding gives the code point.
int EncodeTyped(char32_t character, TextCode code);

}  // namespace toolkit
