// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

namespace kalvon::exchange {

/// A text without its HTML: tags are taken out, a line break becomes a blank, entities become their
/// characters, and runs of white space one blank. What only looks like a tag ("a < b") stays.
QString WithoutMarkup(const QString& html);

/// The character of an HTML entity's name, as "eacute", "#233" or "#xE9"; 0 for an unknown one.
char32_t CharacterOfEntity(QStringView name);

/// The text with white space at its ends taken off and each run of it inside made one blank;
/// control characters and what is no character go.
QString Tidy(const QString& text);

/// A text, UTF-8, as HTML of which `WithoutMarkup` makes the text again. Only a text that would be
/// taken for HTML is changed.
QString AsMarkup(const std::string& text);

}  // namespace kalvon::exchange
