// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace kalvon::exchange {

/// A text without its marks: of styles ("{/italic/}") the text is left, of a link and a picture
/// their text, of a literal ("{\~\}") what it holds. What does not close stays as it is.
QString WithoutXdMarkup(QStringView text);

/// The text with literals where a reader would see a mark or the "~" before an answer.
QString WithXdLiterals(const QString& text);

}  // namespace kalvon::exchange
