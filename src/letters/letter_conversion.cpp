// SPDX-License-Identifier: MIT
#include "letters/letter_conversion.h"

#include <algorithm>

#include "document/crossword_state.h"
#include "letters/alphabet.h"
#include "shell/forms/frm_opcije.h"

namespace kalvon {

namespace {

// The option buttons are the only memory of script and layout.
bool Latin() { return frm_opcije->opt_opcije(1).Value(); }
bool CodePage() { return frm_opcije->opt_opcije1(1).Value(); }

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

/// Applies a letter routine to each character of a text.
std::string Converted(std::string_view text, void (*routine)(std::string_view)) {
  std::string result;
  result.reserve(text.size() + 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view letter = text.substr(i, 1);
    routine(letter);
    result += glavni.znak.empty() ? letter : std::string_view(glavni.znak);
  }
  return result;
}

/// The Latin letters that stand elsewhere in Windows-1250 than in the 7-bit code.
void LatinCodePage(std::string_view letter) {
  if (letter == "`") glavni.znak = "\x9E";
  if (letter == "D`") glavni.znak = "D\x9E";
  if (letter.size() != 1) return;
  const AlphabetLetter* const known = LetterOfStored(letter.front());
  if (known != nullptr && known->latin != known->stored) glavni.znak = known->latin;
}

TypedLetter LetterOfAscii(char key) {
  slovo_veliko(std::string_view(&key, 1));
  if (glavni.znak.empty() || glavni.azbuka.find(glavni.znak) == std::string::npos) return {};
  const char stored = glavni.znak.front();
  slovo_digraf(std::string_view(&stored, 1));
  return {stored, glavni.znak.empty() ? std::string(1, stored) : glavni.znak};
}

TypedLetter LetterOfCodePage(char key) {
  if (glavni.jezik != 0) return {};
  const bool latin = Latin();
  const auto typed_by_key = [&](const AlphabetLetter& letter) {
    return latin ? key == letter.latin || key == letter.latin_small
                 : key == letter.cyrillic || key == letter.cyrillic_small;
  };
  const auto alphabet = SerbianAlphabet();
  const auto found = std::ranges::find_if(alphabet, typed_by_key);
  if (found == alphabet.end()) return {};
  return {found->stored, ShownLetter(found->stored)};
}

}  // namespace

void slovo_digraf(std::string_view letter) {
  glavni.znak.clear();
  if (glavni.jezik == 1 || !Latin() || letter.size() != 1) return;
  for (const Digraph& digraph : digraphs) {
    if (digraph.stored == letter.front()) glavni.znak = digraph.shown;
  }
}

void slovo_cirilica(std::string_view letter) {
  glavni.znak.clear();
  if (!CodePage()) return;
  if (Latin()) {
    LatinCodePage(letter);
  } else if (letter.size() == 1) {
    const AlphabetLetter* const known = LetterOfStored(letter.front());
    if (known != nullptr) glavni.znak = known->cyrillic;
  }
}

void slovo_veliko(std::string_view letter) {
  glavni.znak.clear();
  if (letter.size() != 1) return;
  const char key = letter.front();
  if (key == 'y' && glavni.jezik == 1) glavni.znak = 'Y';
  if (glavni.jezik != 0 && !IsSmallAscii(key)) return;
  const AlphabetLetter* const known = LetterOfAsciiKey(key);
  if (known != nullptr) glavni.znak = known->stored;
}

void konvertuj_pitanje(int strana) {
  const int row = strana == 1 ? glavni.lista_n1 : glavni.lista_n2;
  std::string& text = glavni.lista.Mutable(row, 1, strana);
  text = Converted(text, slovo_veliko);
  text = Converted(text, slovo_digraf);
  text = Converted(text, slovo_cirilica);
}

std::string ShownLetter(char stored) {
  std::string shown(1, stored);
  slovo_digraf(shown);
  if (!glavni.znak.empty()) shown = glavni.znak;
  slovo_cirilica(shown);
  if (!glavni.znak.empty()) shown = glavni.znak;
  return shown;
}

std::string ShownText(std::string_view text) { return Converted(text, slovo_digraf); }

TypedLetter LetterOfKey(int key_code) {
  if (key_code < 0 || key_code > 0xFF) return {};
  const char key = static_cast<char>(key_code);
  return CodePage() ? LetterOfCodePage(key) : LetterOfAscii(key);
}

}  // namespace kalvon
