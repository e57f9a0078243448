// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/text_code_p.h"

#include <QList>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <iterator>

namespace toolkit {

namespace {

constexpr char16_t replacement = 0xFFFD;

using UpperHalf = std::array<char16_t, 128>;

// The characters 0x80 to 0xFF of the two published code pages; U+FFFD where one is not assigned.
constexpr UpperHalf windows_1250 = {
    0x20AC, 0xFFFD, 0x201A, 0xFFFD, 0x201E, 0x2026, 0x2020, 0x2021, 0xFFFD, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0xFFFD, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

constexpr UpperHalf windows_1251 = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409, 0x2039,
    0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0xFFFD, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0, 0x040E, 0x045E, 0x0408,
    0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,
    0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB,
    0x0458, 0x0405, 0x0455, 0x0457, 0x0410, 0x0411, 0x0412, 0x0413, 0x0414, 0x0415, 0x0416, 0x0417,
    0x0418, 0x0419, 0x041A, 0x041B, 0x041C, 0x041D, 0x041E, 0x041F, 0x0420, 0x0421, 0x0422, 0x0423,
    0x0424, 0x0425, 0x0426, 0x0427, 0x0428, 0x0429, 0x042A, 0x042B, 0x042C, 0x042D, 0x042E, 0x042F,
    0x0430, 0x0431, 0x0432, 0x0433, 0x0434, 0x0435, 0x0436, 0x0437, 0x0438, 0x0439, 0x043A, 0x043B,
    0x043C, 0x043D, 0x043E, 0x043F, 0x0440, 0x0441, 0x0442, 0x0443, 0x0444, 0x0445, 0x0446, 0x0447,
    0x0448, 0x0449, 0x044A, 0x044B, 0x044C, 0x044D, 0x044E, 0x044F,
};

/// A letter of the 7-bit national code (JUS I.B1.002 and JUS I.B1.003 with the letters Q, W, X for
/// the digraphs), in both cases.
struct NationalLetter {
  char capital;
  char small;
  std::u16string_view latin_capital;
  std::u16string_view latin_small;
  char16_t cyrillic_capital;
  char16_t cyrillic_small;
};

constexpr NationalLetter national_letters[] = {
    {'A', 'a', u"A", u"a", u'А', u'а'},   {'B', 'b', u"B", u"b", u'Б', u'б'},
    {'V', 'v', u"V", u"v", u'В', u'в'},   {'G', 'g', u"G", u"g", u'Г', u'г'},
    {'D', 'd', u"D", u"d", u'Д', u'д'},   {'\\', '|', u"Đ", u"đ", u'Ђ', u'ђ'},
    {'E', 'e', u"E", u"e", u'Е', u'е'},   {'@', '`', u"Ž", u"ž", u'Ж', u'ж'},
    {'Z', 'z', u"Z", u"z", u'З', u'з'},   {'I', 'i', u"I", u"i", u'И', u'и'},
    {'J', 'j', u"J", u"j", u'Ј', u'ј'},   {'K', 'k', u"K", u"k", u'К', u'к'},
    {'L', 'l', u"L", u"l", u'Л', u'л'},   {'Q', 'q', u"Lj", u"lj", u'Љ', u'љ'},
    {'M', 'm', u"M", u"m", u'М', u'м'},   {'N', 'n', u"N", u"n", u'Н', u'н'},
    {'W', 'w', u"Nj", u"nj", u'Њ', u'њ'}, {'O', 'o', u"O", u"o", u'О', u'о'},
    {'P', 'p', u"P", u"p", u'П', u'п'},   {'R', 'r', u"R", u"r", u'Р', u'р'},
    {'S', 's', u"S", u"s", u'С', u'с'},   {'T', 't', u"T", u"t", u'Т', u'т'},
    {']', '}', u"Ć", u"ć", u'Ћ', u'ћ'},   {'U', 'u', u"U", u"u", u'У', u'у'},
    {'F', 'f', u"F", u"f", u'Ф', u'ф'},   {'H', 'h', u"H", u"h", u'Х', u'х'},
    {'C', 'c', u"C", u"c", u'Ц', u'ц'},   {'^', '~', u"Č", u"č", u'Ч', u'ч'},
    {'X', 'x', u"Dž", u"dž", u'Џ', u'џ'}, {'[', '{', u"Š", u"š", u'Ш', u'ш'},
};

constexpr char16_t check_mark = 0x2714;
constexpr unsigned char check_mark_sign = 252;

const UpperHalf* CodePage(TextCode code) {
  switch (code) {
    case TextCode::windows_1250:
    case TextCode::national_latin:
      return &windows_1250;
    case TextCode::windows_1251:
    case TextCode::national_cyrillic:
      return &windows_1251;
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
  const auto* letter = std::find_if(
      std::begin(national_letters), std::end(national_letters),
      [&](const NationalLetter& l) { return l.capital == character || l.small == character; });
  if (letter == std::end(national_letters) || (character == 'X' && next == '='))
    return QChar::fromLatin1(character);
  const bool capital = letter->capital == character;
  if (code == TextCode::national_cyrillic)
    return QChar(capital ? letter->cyrillic_capital : letter->cyrillic_small);
  const std::u16string_view shown = capital ? letter->latin_capital : letter->latin_small;
  return QString::fromUtf16(shown.data(), static_cast<qsizetype>(shown.size()));
}

int EncodeNational(char32_t character, TextCode code) {
  for (const NationalLetter& letter : national_letters) {
    const bool latin = code == TextCode::national_latin;
    const char32_t capital = latin ? letter.latin_capital.front() : letter.cyrillic_capital;
    const char32_t small = latin ? letter.latin_small.front() : letter.cyrillic_small;
    if (latin && letter.latin_capital.size() > 1) continue;  // No key types a whole digraph.
    if (character == capital) return letter.capital;
    if (character == small) return letter.small;
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
  const UpperHalf* page = CodePage(code);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 0x80 && page != nullptr)
      decoded += QChar((*page)[byte - 0x80U]);
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
  const UpperHalf* page = CodePage(code);
  if (page == nullptr || character == replacement) return '?';
  const auto* found = std::find(page->begin(), page->end(), character);
  return found == page->end() ? '?' : 0x80 + static_cast<int>(found - page->begin());
}

std::string Encode(const QString& text, TextCode code) {
  if (code == TextCode::host) return text.toStdString();
  std::string encoded;
  for (const char32_t character : text.toUcs4())
    encoded += static_cast<char>(EncodeTyped(character, code));
  return encoded;
}

}  // namespace toolkit
