// SPDX-License-Identifier: MIT
#include "exchange/qvm.h"

#include <QString>
#include <algorithm>

#include "crossword/cell.h"
#include "crossword/fields.h"
#include "crossword/installments.h"
#include "crossword/pack_making.h"
#include "crossword/reading.h"
#include "exchange/clue_text.h"
#include "exchange/media.h"
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

/// The cells of an installment in the grid of all.
struct Block {
  int number = 1;
  int left = 0;   ///< Columns to the left of it.
  int above = 0;  ///< Rows above it.
  int width = 0;
  int height = 0;

  [[nodiscard]] bool Holds(GridCell cell) const {
    return cell.x > left && cell.x <= left + width && cell.y > above && cell.y <= above + height;
  }
};

std::vector<Block> BlocksOf(const Crossword& crossword, const Division& division) {
  const bool beside = division.join == join::side_by_side;
  const int parts = division.installments;
  const int divided = beside ? crossword.ukr_sirina : crossword.ukr_visina;
  if (parts < 1 || divided % parts != 0) throw ConversionError(Matter::uneven_parts);
  std::vector<Block> blocks;
  for (int part = 0; part < parts; ++part) {
    Block block{part + 1, 0, 0, crossword.ukr_sirina, crossword.ukr_visina};
    (beside ? block.width : block.height) = divided / parts;
    (beside ? block.left : block.above) = part * (divided / parts);
    blocks.push_back(block);
  }
  return blocks;
}

MediaPack PackFor(const HeadedCrossword& headed, const Block& block) {
  std::map<std::string, std::string> media;
  for (const MediaClue& clue : MediaClues(headed.crossword)) {
    const auto medium = headed.media.find(clue.medium);
    if (block.Holds(clue.cell) && medium != headed.media.end()) media.insert(*medium);
  }
  return MakePack(media);
}

Header HeaderFor(const HeadedCrossword& headed, const Division& division, const Block& block,
                 Remarks& remarks) {
  const HeadWords& words = WordsOf(headed.english);
  const auto coded = [&](const std::string& text) {
    return CodedText(text, headed.english, remarks);
  };
  const std::string beside = division.join == join::side_by_side ? "1" : "0";
  const std::string below = division.join == join::one_under_the_other ? "1" : "0";
  return {
      "",
      std::string(words.title) + coded(headed.head.title),
      std::string(words.dimensions) + "X=" + InThree(block.width) + " Y=" + InThree(block.height),
      std::string(words.description) + coded(DescriptionLine(headed.head, words)),
      std::string(words.installment) + std::to_string(block.number),
      "H1: " + beside,
      "V1: " + below,
      "H2: " + beside,
      "V2: " + below};
}

QvmFile FileFor(const HeadedCrossword& headed, const Division& division, const Block& block,
                Remarks& remarks) {
  MediaPack pack = PackFor(headed, block);
  Header header = HeaderFor(headed, division, block, remarks);
  header.front() = pack.table;
  QvmFile file{.crossword = "", .pack = std::move(pack.bytes)};
  const auto print = [&](const std::string& line) { file.crossword.append(line).append(line_end); };
  std::ranges::for_each(header, print);
  for (int y = block.above + 1; y <= block.above + block.height; ++y) {
    for (int x = block.left + 1; x <= block.left + block.width; ++x) {
      print(headed.crossword.ukr_polja(x, y, 1));
      print(headed.crossword.ukr_polja(x, y, 2));
    }
  }
  return file;
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

std::vector<QvmFile> QvmFiles(const HeadedCrossword& headed, const Division& division,
                              Remarks& remarks) {
  std::vector<QvmFile> made;
  for (const Block& block : BlocksOf(headed.crossword, division)) {
    Remarks again;  // The head is the same in each.
    made.push_back(FileFor(headed, division, block, made.empty() ? remarks : again));
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
