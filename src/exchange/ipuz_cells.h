// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include "exchange/puzzle.h"
#include "exchange/remark.h"

namespace kalvon::exchange {

/// A value that is a text or a whole number, as a text without blanks around it; empty for others.
/// ConversionError for a text that is longer than any of a crossword.
QString PlainText(const QJsonValue& value);

/// The grid of an ipuz file: cells with their solutions, numbers and entries, without clues.
/// ConversionError for a grid with bars or without its blocks.
Puzzle ReadIpuzCells(const QJsonObject& file, Remarks& remarks);

}  // namespace kalvon::exchange
