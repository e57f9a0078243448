// SPDX-License-Identifier: MIT
#include "exchange/cell_letter.h"

#include <QList>
#include <QString>

#include "exchange/clue_text.h"
#include "letters/letter_conversion.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange {
namespace {

char StoredCapital(char stored) {
  return stored >= '`' && stored <= '~' ? static_cast<char>(stored - ('a' - 'A')) : stored;
}

/// Takes the first letter off a text, if the alphabet has it.
char TakeCapital(std::string_view& text, bool english) {
  if (!english) return StoredCapital(TakeLetter(text));
  if (text.empty()) return '\0';
  const char letter = StoredCapital(text.front());
  if (azbuka(english).find(letter) == std::string_view::npos) return '\0';
  text.remove_prefix(1);
  return letter;
}

bool IsOneCharacter(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUcs4().size() == 1;
}

/// The letter that is nearest to a text which is none.
char NearestLetter(std::string_view text, GridCell cell, bool english, Remarks& remarks) {
  const bool one_character = IsOneCharacter(text);
  for (const std::string& tried : {std::string(text), WithoutAccents(text)}) {
    std::string_view rest = tried;
    const char letter = TakeCapital(rest, english);
    if (letter == '\0') continue;
    const Matter matter = one_character ? Matter::accent_taken_off : Matter::rebus_shortened;
    remarks.Add({.matter = matter, .cell = cell, .detail = std::string(text)});
    return letter;
  }
  remarks.Add({.matter = Matter::no_letter_hidden, .cell = cell, .detail = std::string(text)});
  return unknown_letter;
}

}  // namespace

char CellLetter(std::string_view text, GridCell cell, bool english, bool lenient,
                Remarks& remarks) {
  if (text.empty()) {
    remarks.Count(Matter::no_solution);
    return unknown_letter;
  }
  if (const char letter = EntryLetter(text, english); letter != '\0') return letter;
  if (lenient) return NearestLetter(text, cell, english, remarks);
  throw ConversionError({.matter = IsOneCharacter(text) ? Matter::no_letter : Matter::many_letters,
                         .cell = cell,
                         .detail = std::string(text)});
}

char EntryLetter(std::string_view text, bool english) {
  const char letter = TakeCapital(text, english);
  return text.empty() ? letter : '\0';
}

}  // namespace kalvon::exchange
