// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <map>
#include <vector>

#include "exchange/remark.h"

namespace kalvon::exchange {

/// A line that is not blank, without white space at its ends.
struct XdLine {
  int number = 0;  ///< In the file, from 1.
  QStringView text;
};

/// The lines of a file by the name of their section, in small letters. The views last as long as
/// the text.
using XdSections = std::map<QString, std::vector<XdLine>>;

/// Divides a text at its headings ("## Grid"), or where it has none at two blank lines or more,
/// into "metadata", "grid", "clues" and "notes". Comments are left out. Error
/// `too_long` for more lines or sections than any crossword has.
XdSections SectionsOfXd(const QString& text);

/// Says that a line breaks the rules.
[[noreturn]] void RefuseLine(const XdLine& line);

}  // namespace kalvon::exchange
