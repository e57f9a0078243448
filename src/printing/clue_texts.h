// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "crossword/media_kinds.h"
#include "printing/paragraph.h"
#include "printing/printing.h"

namespace kalvon::printing {

/// A clue, or the heading above those of a direction, which has no number.
struct Entry {
  QString number;
  std::optional<Medium> medium;
  Paragraph text;
};

/// The headings and clues in their order. A direction none of whose clues has a text is left out.
std::vector<Entry> Entries(const Sheet& sheet);

/// A text in Serbian Latin letters or in English, as the sheet writes it.
QString Written(const std::string& text, const Writing& writing);

}  // namespace kalvon::printing
