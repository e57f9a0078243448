// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/text_code_p.h"

#include <glib.h>

#include <QList>
#include <QStringDecoder>
#include <algorithm>
#include <iterator>

namespace toolkit {

namespace {

constexpr char16_t replacement = 0xFFFD;

/// The characters 0x80 to 0xFF of a code page; U+FFFD where one is not assigned.
QString UpperHalf(const char* page_name) {
  QString page;
  for (int code = 0x80; code <= 0xFF; ++code) {
    const char byte = static_cast<char>(code);
    gchar* character = g_convert(&byte, 1, "UTF-8", page_name, nullptr, nullptr, nullptr);
    page += character == nullptr ? QString(replacement) : QString::fromUtf8(character);
    g_free(character);
  }
  return page;
}

/// A letter of the 7-bit national code (JUS I.B1.002 and JUS I.B1.003 with the letters Q, W, X for
/// the digraphs): its capitals.
struct NationalLetter {
  char code = 0;
  QStringView latin;
  char16_t cyrillic = 0;
};

/// What the code of a small letter has more than that of its capital.
constexpr int small_letter = 'a' - 'A';

constexpr NationalLetter national_letters[] = {
    {'A', u"A", u'А'},  {'B', u"B", u'Б'},  {'V', u"V", u'В'}, {'G', u"G", u'Г'},
    {'D', u"D", u'Д'},  {'\\', u"Đ", u'Ђ'}, {'E', u"E", u'Е'}, {'@', u"Ž", u'Ж'},
    {'Z', u"Z", u'З'},  {'I', u"I", u'И'},  {'J', u"J", u'Ј'}, {'K', u"K", u'К'},
    {'L', u"L", u'Л'},  {'Q', u"Lj", u'Љ'}, {'M', u"M", u'М'}, {'N', u"N", u'Н'},
    {'W', u"Nj", u'Њ'}, {'O', u"O", u'О'},  {'P', u"P", u'П'}, {'R', u"R", u'Р'},
    {'S', u"S", u'С'},  {'T', u"T", u'Т'},  {']', u"Ć", u'Ћ'}, {'U', u"U", u'У'},
    {'F', u"F", u'Ф'},  {'H', u"H", u'Х'},  {'C', u"C", u'Ц'}, {'^', u"Č", u'Ч'},
    {'X', u"Dž", u'Џ'}, {'[', u"Š", u'Ш'},
};

constexpr char16_t check_mark = 0x2714;
constexpr unsigned char check_mark_sign = 252;

/// None for a code that uses no code page.
const QString* CodePage(TextCode code) {
  static const QString central_european = UpperHalf("CP1250");
  static const QString cyrillic = UpperHalf("CP1251");
  switch (code) {
    case TextCode::windows_1250:
    case TextCode::national_latin:
      return &central_european;
    case TextCode::windows_1251:
    case TextCode::national_cyrillic:
      return &cyrillic;
    default:
      return nullptr;
  }
}

bool National(TextCode code) {
  return code == TextCode::national_latin || code == TextCode::national_cyrillic;
}

/// What the national fonts show for a character. The size of a crossword is written "X= 15": there
/// the letter is the sign of the axis and no digraph.
QString NationalShown(char character, char next, TextCode code) {
  const bool small = character >= '`';
  const char capital = static_cast<char>(small ? character - small_letter : character);
  const auto* letter = std::ranges::find(national_letters, capital, &NationalLetter::code);
  if (letter == std::end(national_letters) || (character == 'X' && next == '='))
    return QChar::fromLatin1(character);
  const QString shown =
      code == TextCode::national_cyrillic ? QString(letter->cyrillic) : letter->latin.toString();
  return small ? shown.toLower() : shown;
}

/// The character is none of ASCII, so that no first letter of a digraph is taken for it.
int EncodeNational(char32_t character, TextCode code) {
  for (const NationalLetter& letter : national_letters) {
    const bool latin = code == TextCode::national_latin;
    const char32_t capital = latin ? letter.latin.front().unicode() : letter.cyrillic;
    if (character == capital) return letter.code;
    if (character == QChar::toLower(capital)) return letter.code + small_letter;
  }
  return '?';
}

QString DecodeHost(std::string_view text) {
  const auto size = static_cast<qsizetype>(text.size());
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString decoded = utf8(QByteArrayView(text.data(), size));
  return utf8.hasError() ? QString::fromLatin1(text.data(), size) : decoded;
}

}  // namespace

TextCode TextCodeOf(std::string_view font_name, int charset) {
  if (font_name == "Kalvon") return TextCode::national_latin;
  if (font_name == "C_Kalvon") return TextCode::national_cyrillic;
  if (font_name == "Wingdings") return TextCode::signs;
  if (charset == 238) return TextCode::windows_1250;
  if (charset == 204) return TextCode::windows_1251;
  return TextCode::host;
}

QString Decode(std::string_view text, TextCode code) {
  if (code == TextCode::host) return DecodeHost(text);
  QString decoded;
  decoded.reserve(static_cast<qsizetype>(text.size()));
  const QString* page = CodePage(code);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 0x80 && page != nullptr)
      decoded += page->at(byte - 0x80);
    else if (National(code))
      decoded += NationalShown(text[i], i + 1 < text.size() ? text[i + 1] : '\0', code);
    else
      decoded += byte == check_mark_sign ? QChar(check_mark) : QChar::fromLatin1(text[i]);
  }
  return decoded;
}

int EncodeTyped(char32_t character, TextCode code) {
  if (character < 0x80 || code == TextCode::host) return static_cast<int>(character);
  if (National(code)) return EncodeNational(character, code);
  const QString* page = CodePage(code);
  if (page == nullptr || character >= replacement) return '?';
  const qsizetype place = page->indexOf(QChar(static_cast<char16_t>(character)));
  return place < 0 ? '?' : 0x80 + static_cast<int>(place);
}

std::string Encode(const QString& text, TextCode code) {
  if (code == TextCode::host) return text.toStdString();
  std::string encoded;
  for (const char32_t character : text.toUcs4())
    encoded += static_cast<char>(EncodeTyped(character, code));
  return encoded;
}

}  // namespace toolkit
