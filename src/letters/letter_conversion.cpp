// SPDX-License-Identifier: MIT
#include "letters/letter_conversion.h"

#include <algorithm>

#include "letters/alphabet.h"

namespace kalvon {

namespace {

// What Latin script shows for the letters that it writes with two. The grave accent is the small
// z with caron of the 7-bit code.
struct Digraph {
  char stored;
  std::string_view shown;
};
constexpr Digraph digraphs[] = {
    {'Q', "Lj"}, {'q', "lj"}, {'W', "Nj"}, {'w', "nj"}, {'X', "D`"}, {'x', "d`"},
};

constexpr bool IsSmallAscii(char c) { return c >= 'a' && c <= 'z'; }

/// A letter as a routine turns it, or the letter itself.
template <typename Result>
std::string Or(const Result& converted, std::string_view letter) {
  return std::string(converted.empty() ? letter : std::string_view(converted));
}

/// Applies a letter routine to each character of a text.
template <typename Routine>
std::string Converted(std::string_view text, Routine routine, const Writing& writing) {
  std::string result;
  result.reserve(text.size() + 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view letter = text.substr(i, 1);
    const auto converted = routine(letter, writing);
    result += converted.empty() ? letter : std::string_view(converted);
  }
  return result;
}

/// The Latin letters that stand elsewhere in Windows-1250 than in the 7-bit code.
std::string LatinCodePage(std::string_view letter) {
  if (letter == "`") return "\x9E";
  if (letter == "D`") return "D\x9E";
  if (letter.size() != 1) return {};
  const AlphabetLetter* const known = LetterOfStored(letter.front());
  const bool elsewhere = known != nullptr && known->latin != known->stored;
  return elsewhere ? std::string(1, known->latin) : std::string();
}

char LetterOfAscii(char key, const Writing& writing) {
  const std::string_view stored = slovo_veliko({&key, 1}, writing);
  const bool known = azbuka(writing.english).find(stored) != std::string_view::npos;
  return stored.empty() || !known ? '\0' : stored.front();
}

char LetterOfCodePage(char key, const Writing& writing) {
  if (writing.english) return '\0';
  const auto typed_by_key = [&](const AlphabetLetter& letter) {
    return writing.latin ? key == letter.latin || key == letter.latin_small
                         : key == letter.cyrillic || key == letter.cyrillic_small;
  };
  const auto alphabet = SerbianAlphabet();
  const auto found = std::ranges::find_if(alphabet, typed_by_key);
  return found == alphabet.end() ? '\0' : found->stored;
}

}  // namespace

std::string_view azbuka(bool english) {
  static const std::string serbian = [] {
    std::string letters;
    for (const AlphabetLetter& letter : SerbianAlphabet()) letters += letter.stored;
    return letters;
  }();
  return english ? "ABCDEFGHIJKLMNOPQRSTUVWXYZ" : std::string_view(serbian);
}

std::string_view slovo_digraf(std::string_view letter, const Writing& writing) {
  if (writing.english || !writing.latin || letter.size() != 1) return {};
  const auto* const found = std::ranges::find(digraphs, letter.front(), &Digraph::stored);
  return found == std::end(digraphs) ? std::string_view() : found->shown;
}

std::string slovo_cirilica(std::string_view letter, const Writing& writing) {
  if (writing.english || !writing.code_page) return {};
  if (writing.latin) return LatinCodePage(letter);
  const AlphabetLetter* const known = letter.size() == 1 ? LetterOfStored(letter.front()) : nullptr;
  return known == nullptr ? std::string() : std::string(1, known->cyrillic);
}

std::string_view slovo_veliko(std::string_view letter, const Writing& writing) {
  if (letter.size() != 1) return {};
  const char key = letter.front();
  if (key == 'y' && writing.english) return "Y";
  if (writing.english && !IsSmallAscii(key)) return {};
  const AlphabetLetter* const known = LetterOfAsciiKey(key);
  return known == nullptr ? std::string_view() : std::string_view(&known->stored, 1);
}

std::string ShownLetter(char stored, const Writing& writing) {
  const std::string shown = Or(slovo_digraf({&stored, 1}, writing), {&stored, 1});
  return Or(slovo_cirilica(shown, writing), shown);
}

std::string ShownClue(std::string_view text, const Writing& writing) {
  std::string shown = Converted(text, slovo_veliko, writing);
  shown = Converted(shown, slovo_digraf, writing);
  return Converted(shown, slovo_cirilica, writing);
}

std::string ShownText(std::string_view text, const Writing& writing) {
  return Converted(text, slovo_digraf, writing);
}

char LetterOfKey(int key_code, const Writing& writing) {
  if (key_code < 0 || key_code > 0xFF) return '\0';
  const char key = static_cast<char>(key_code);
  return writing.code_page ? LetterOfCodePage(key, writing) : LetterOfAscii(key, writing);
}

}  // namespace kalvon
