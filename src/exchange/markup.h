// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace kalvon::exchange {

/// A text without its HTML: tags are taken out, a line break becomes a blank, entities become their
/// characters, and runs of white space one blank. What only looks like a tag ("a < b") stays.
QString WithoutMarkup(const QString& html);

/// The text with white space at its ends taken off and each run of it inside made one blank;
/// control characters go.
QString Tidy(const QString& text);

}  // namespace kalvon::exchange
