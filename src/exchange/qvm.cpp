// SPDX-License-Identifier: MIT
#include "exchange/qvm.h"

#include <QString>
#include <algorithm>

#include "crossword/cell.h"
#include "crossword/fields.h"
#include "crossword/installments.h"
#include "crossword/reading.h"
#include "exchange/clue_text.h"
#include "letters/unicode_text.h"

namespace kalvon::exchange {
namespace {

constexpr std::string_view line_end = "\r\n";

/// The words of a head in a language.
struct HeadWords {
  std::string_view title, dimensions, description, installment, author;
};
constexpr HeadWords serbian_words = {
    "Naziv: ", "Dimenzije:", "Opis: ", "Nastavak broj: ", "Autor: "};
constexpr HeadWords english_words = {
    "Name: ", "Dimensions:", "Description: ", "Installment: ", "Author: "};
constexpr std::string_view copyright_sign = "(c) ";

const HeadWords& WordsOf(bool english) { return english ? english_words : serbian_words; }

std::string Value(std::string_view line, bool english) {
  const std::string_view value = Trimmed(Behind(line, ':'));
  return english ? std::string(value) : UnicodeText(value, true);
}

/// Takes what stands behind the last occurrence of a word off a text.
std::string TakeBehind(std::string& text, std::string_view word) {
  const std::size_t place = text.rfind(word);
  if (place == std::string::npos || (place > 0 && text[place - 1] != ' ')) return {};
  std::string behind(Trimmed(std::string_view(text).substr(place + word.size())));
  text = Trimmed(std::string_view(text).substr(0, place));
  return behind;
}

/// A head has a line for the title and one for all else that is told.
std::string DescriptionLine(const Head& head, const HeadWords& words) {
  std::string line = head.description;
  const auto add = [&](std::string_view word, const std::string& text) {
    if (text.empty()) return;
    if (!line.empty()) line += ' ';
    line.append(word).append(text);
  };
  add(words.author, head.author);
  add(copyright_sign, head.copyright.starts_with("©") ? head.copyright.substr(2) : head.copyright);
  return line;
}

/// A number right-aligned in three characters.
std::string InThree(int number) {
  const std::string digits = std::to_string(number);
  return std::string(3 - std::min<std::size_t>(3, digits.size()), ' ') + digits;
}

Header HeaderFor(const HeadedCrossword& headed, const Division& division, int installment,
                 Remarks& remarks) {
  const Crossword& crossword = headed.crossword;
  const HeadWords& words = WordsOf(headed.english);
  const bool beside = division.join == join::side_by_side;
  const int width = crossword.ukr_sirina / (beside ? division.installments : 1);
  const int height = crossword.ukr_visina / (beside ? 1 : division.installments);
  const bool below = division.join == join::one_under_the_other;
  const auto coded = [&](const std::string& text) {
    return CodedText(text, headed.english, remarks);
  };
  const std::string beside_mark = beside ? "1" : "0";
  const std::string below_mark = below ? "1" : "0";
  return {installment == 1 ? crossword.media_sadrzaj(1) : "",
          std::string(words.title) + coded(headed.head.title),
          std::string(words.dimensions) + "X=" + InThree(width) + " Y=" + InThree(height),
          std::string(words.description) + coded(DescriptionLine(headed.head, words)),
          std::string(words.installment) + std::to_string(installment),
          "H1: " + beside_mark,
          "V1: " + below_mark,
          "H2: " + beside_mark,
          "V2: " + below_mark};
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether three digits stand at the end.
bool EndsInNumber(std::string_view name) {
  return name.size() > 2 && std::ranges::all_of(name.substr(name.size() - 3), IsDigit);
}

/// A text in letters without accents, Cyrillic ones in Latin.
std::string InAscii(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const bool ascii = (text.front() & 0x80) == 0;
    const char letter = ascii ? '\0' : TakeLetter(text);
    if (letter == '|' || letter == '\\') {
      plain += "dj";
    } else if (letter != '\0') {
      plain += UnicodeText({&letter, 1}, true);
    } else {
      plain += text.front();
      text.remove_prefix(1);
    }
  }
  return WithoutAccents(plain);
}

}  // namespace

Head HeadOf(const Header& header, bool english) {
  Head head{.title = Value(header[1], english), .description = Value(header[3], english)};
  head.copyright = TakeBehind(head.description, copyright_sign);
  head.author = TakeBehind(head.description, WordsOf(english).author);
  return head;
}

HeadedCrossword ReadQvm(const std::string& path, Language language) {
  HeadedCrossword headed{.crossword = ReadCrossword(path)};
  files::TextReader file(path, files::as_the_first_line);
  const Header header = ReadHeader(file);
  headed.english = language == Language::found ? header[2].starts_with(english_words.dimensions)
                                               : language == Language::english;
  headed.head = HeadOf(header, headed.english);
  return headed;
}

std::vector<std::string> QvmFiles(const HeadedCrossword& headed, const Division& division,
                                  Remarks& remarks) {
  const Crossword& crossword = headed.crossword;
  const bool beside = division.join == join::side_by_side;
  const int parts = division.installments;
  const int divided = beside ? crossword.ukr_sirina : crossword.ukr_visina;
  if (parts < 1 || divided % parts != 0) throw ConversionError(Matter::uneven_parts);
  const int width = beside ? crossword.ukr_sirina / parts : int{crossword.ukr_sirina};
  const int height = beside ? int{crossword.ukr_visina} : crossword.ukr_visina / parts;
  std::vector<std::string> made;
  for (int part = 0; part < parts; ++part) {
    std::string bytes;
    for (const std::string& line : HeaderFor(headed, division, part + 1, remarks))
      bytes.append(line).append(line_end);
    const int left = beside ? part * width : 0;
    const int above = beside ? 0 : part * height;
    for (int y = above + 1; y <= above + height; ++y) {
      for (int x = left + 1; x <= left + width; ++x) {
        bytes.append(crossword.ukr_polja(x, y, 1)).append(line_end);
        bytes.append(crossword.ukr_polja(x, y, 2)).append(line_end);
      }
    }
    made.push_back(std::move(bytes));
  }
  return made;
}

std::string QvmName(const std::string& base, const Division& division, int installment) {
  if (division.installments == 1) return base + ".qvm";
  if (QString::fromStdString(base).size() != 5) throw ConversionError(Matter::installment_name);
  return InstallmentName(base, installment, "qvm");
}

bool IsTakenName(std::string_view base) {
  return !base.empty() && base.find('.') == std::string_view::npos && !EndsInNumber(base);
}

std::string MadeName(std::string_view text, int number) {
  constexpr std::size_t longest = 16;
  std::string name;
  for (const char c : InAscii(text)) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || IsDigit(c);
    if (letter)
      name += static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    else if (!name.empty() && name.back() != '-')
      name += '-';
  }
  const std::string behind = number > 1 ? "-" + std::to_string(number) : "";
  name.resize(std::min(name.size(), longest - behind.size()));
  while (name.ends_with('-')) name.pop_back();
  if (name.empty()) name = "ukrstenica";
  name += behind;
  if (EndsInNumber(name)) name.replace(name.size() - 1, 1, "-" + name.substr(name.size() - 1));
  return name;
}

}  // namespace kalvon::exchange
