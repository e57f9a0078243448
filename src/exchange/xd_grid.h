// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "exchange/puzzle.h"
#include "exchange/xd_sections.h"

namespace kalvon::exchange {

/// What characters of the grid stand for, where it is not themselves.
using XdRebus = std::map<char32_t, QString>;

/// The value of the header: "1=LJ 2=NJ". Two texts of one character are parted by a slash.
/// Error `too_long` for one beyond `longest_cell`.
XdRebus RebusOf(QStringView value);

/// The texts of a cell, any of which is right.
QStringList AlternativesOf(const QString& solution);

/// The grid of a section. Remarks for cells that are marked by small letters. The header "Special"
/// says how.
Puzzle ReadXdGrid(const std::vector<XdLine>& rows, const XdRebus& rebus, QStringView special,
                  Remarks& remarks);

/// Letters of the user in the rows of a grid, with "." for none. False if it has another size.
bool ReadXdEntries(const std::vector<QStringView>& rows, const XdRebus& rebus, Puzzle& puzzle);

/// Remarks for what a section "Design" draws into cells. Error for bars.
void ReadXdDesign(const std::vector<XdLine>& lines, Remarks& remarks);

}  // namespace kalvon::exchange
