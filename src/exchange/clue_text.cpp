// SPDX-License-Identifier: MIT
#include "exchange/clue_text.h"

#include <QList>
#include <QString>
#include <algorithm>
#include <iterator>

#include "exchange/markup.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange {
namespace {

struct Replacement {
  char32_t character;
  std::string_view text;
};

// What typography has and a 7-bit code has not.
constexpr Replacement similar[] = {
    {U'„', "\""}, {U'“', "\""}, {U'”', "\""}, {U'‟', "\""}, {U'«', "\""}, {U'»', "\""},
    {U'″', "\""}, {U'‘', "'"},  {U'’', "'"},  {U'‚', "'"},  {U'‛', "'"},  {U'‹', "'"},
    {U'›', "'"},  {U'′', "'"},  {U'´', "'"},  {U'ʼ', "'"},  {U'–', "-"},  {U'—', "-"},
    {U'―', "-"},  {U'−', "-"},  {U'‐', "-"},  {U'‑', "-"},  {U'•', "*"},  {U'·', "*"},
    {U'×', "*"},  {U'⁄', "/"},  {U'ß', "ss"}, {U'æ', "ae"}, {U'Æ', "AE"}, {U'œ', "oe"},
    {U'Œ', "OE"}, {U'ø', "o"},  {U'Ø', "O"},  {U'ł', "l"},  {U'Ł', "L"},  {U'ı', "i"},
    {U'€', "EUR"}};

// Characters that are Serbian letters in the code, and letters that Serbian has not.
constexpr Replacement taken[] = {{U'[', "("},  {U']', ")"}, {U'{', "("},    {U'}', ")"},
                                 {U'\\', "/"}, {U'|', "/"}, {U'@', "(at)"}, {U'^', "'"},
                                 {U'~', "-"},  {U'`', "'"}, {U'q', "k"},    {U'Q', "K"},
                                 {U'w', "v"},  {U'W', "V"}, {U'x', "ks"},   {U'X', "Ks"}};

template <std::size_t Size>
const Replacement* In(const Replacement (&table)[Size], char32_t character) {
  const auto* const found = std::ranges::find(table, character, &Replacement::character);
  return found == std::end(table) ? nullptr : found;
}

std::string Utf8(char32_t character) { return QString::fromUcs4(&character, 1).toStdString(); }

/// A letter without its accents, or what Unicode takes for the same as a character; empty if it
/// gives nothing in ASCII.
std::string Plain(char32_t character) {
  const QString parts = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD);
  std::string plain;
  for (const char32_t part : parts.toUcs4()) {
    if (const Replacement* const known = In(similar, part))
      plain += known->text;
    else if (part < 0x80)
      plain += static_cast<char>(part);
    else if (!QChar::isMark(part))
      return {};
  }
  return plain;
}

/// A character that is no Serbian letter, as 7-bit ASCII that means none.
std::string Sign(char32_t character, Remarks& remarks) {
  if (const Replacement* const sign = In(taken, character)) {
    remarks.Count(Matter::text_approximated, Utf8(character));
    return std::string(sign->text);
  }
  if (character < 0x80) return {1, static_cast<char>(character)};
  const Replacement* const known = In(similar, character);
  const std::string plain = known != nullptr ? std::string(known->text) : Plain(character);
  const bool lost = plain.empty() || plain.find_first_of("qQwWxX") != std::string::npos;
  remarks.Count(lost ? Matter::text_lost : Matter::text_approximated, Utf8(character));
  return lost ? "?" : plain;
}

bool IsSerbianLetter(char32_t character) {
  const std::string letter = Utf8(character);
  std::string_view rest = letter;
  return TakeLetter(rest) != '\0';
}

constexpr char32_t non_joiner = 0x200C;

std::string SerbianText(const QString& text, Remarks& remarks) {
  std::string plain;
  for (const char32_t character : text.toUcs4()) {
    const bool kept = character == non_joiner || IsSerbianLetter(character);
    plain += kept ? Utf8(character) : Sign(character, remarks);
  }
  return StoredText(plain);
}

}  // namespace

std::string CodedText(std::string_view text, bool english, Remarks& remarks) {
  const QString tidy = Tidy(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())))
                           .normalized(QString::NormalizationForm_C);
  std::string coded = english ? tidy.toStdString() : SerbianText(tidy, remarks);
  for (char& character : coded) {
    if (character == '$') {
      remarks.Count(Matter::dollar_replaced);
      character = '?';
    } else if (character == ';') {
      remarks.Count(Matter::text_approximated, ";");
      character = ',';
    }
  }
  return coded;
}

std::string CodedClue(std::string_view text, bool english, Remarks& remarks) {
  std::string clue = CodedText(text, english, remarks);
  if (!clue.starts_with('/')) return clue;
  remarks.Count(Matter::slash_moved);
  return clue.insert(0, 1, ' ');
}

std::string WithoutAccents(std::string_view text) {
  const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  std::string without;
  for (const char32_t character : whole.normalized(QString::NormalizationForm_C).toUcs4()) {
    const std::string plain = Plain(character);
    without += plain.empty() ? Utf8(character) : plain;
  }
  return without;
}

}  // namespace kalvon::exchange
