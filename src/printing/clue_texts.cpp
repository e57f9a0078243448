// SPDX-License-Identifier: MIT
#include "printing/clue_texts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "crossword/clue.h"
#include "crossword/direction.h"
#include "letters/transliteration.h"
#include "letters/unicode_text.h"

namespace kalvon::printing {
namespace {

struct Heading {
  int direction;
  const char* serbian;
  const char* english;
};
constexpr Heading headings[] = {{direction::across, "Vodoravno", "Across"},
                                {direction::down, "Uspravno", "Down"}};

/// The kind of a medium by the ending of its name, in small or capital letters.
std::optional<Medium> MediumOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  const std::string ending =
      QByteArray::fromStdString(std::string(name.substr(dot + 1))).toLower().toStdString();
  const MediaKind* kind = FindMediaKind(ending);
  return kind ? std::optional(kind->medium) : std::nullopt;
}

QString ClueText(std::string_view stored, const Writing& writing) {
  if (writing.english)
    return QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size()));
  return QString::fromStdString(UnicodeText(stored, writing.latin));
}

std::vector<Entry> CluesOf(const Sheet& sheet, int direction) {
  const Crossword& crossword = sheet.crossword;
  std::vector<Entry> clues;
  for (int n = 1; n <= crossword.broj_pitanja; ++n) {
    if (!BelongsTo(crossword.pitanja(n, 1), direction)) continue;
    const Clue clue = ReadClue(
        crossword.ukr_polja(crossword.pitanja(n, 2), crossword.pitanja(n, 3), 2), direction);
    clues.push_back(
        {QString::number(n), MediumOf(clue.media), Paragraph(ClueText(clue.text, sheet.writing))});
  }
  return clues;
}

}  // namespace

QString Written(const std::string& text, const Writing& writing) {
  const bool as_it_is = writing.english || writing.latin;
  return QString::fromStdString(as_it_is ? text : InScript(text, false)).simplified();
}

std::vector<Entry> Entries(const Sheet& sheet) {
  std::vector<Entry> entries;
  for (const Heading& heading : headings) {
    std::vector<Entry> clues = CluesOf(sheet, heading.direction);
    const auto is_empty = [](const Entry& clue) { return clue.text.IsEmpty() && !clue.medium; };
    if (std::ranges::all_of(clues, is_empty)) continue;
    const char* const text = sheet.writing.english ? heading.english : heading.serbian;
    entries.push_back({{}, {}, Paragraph(Written(text, sheet.writing), true)});
    std::ranges::move(clues, std::back_inserter(entries));
  }
  return entries;
}

}  // namespace kalvon::printing
