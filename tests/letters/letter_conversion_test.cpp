// SPDX-License-Identifier: MIT
#include "letters/letter_conversion.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace kalvon::testing {
namespace {

constexpr Writing latin_ascii{};
constexpr Writing latin_page{.code_page = true};
constexpr Writing cyrillic_ascii{.latin = false};
constexpr Writing cyrillic_page{.latin = false, .code_page = true};
constexpr Writing english{.english = true};

/// A letter and its bytes: what types it under YU ASCII, and both cases in Windows-1250 and in
/// Windows-1251. A digraph has no byte in the Latin page; its stored form types it there.
struct Letter {
  char stored;
  const char* keys;
  const char* latin;
  const char* cyrillic;
};

// clang-format off
const Letter letters[] = {
    {'A', "a", "Aa", "\xC0\xE0"},        {'B', "b", "Bb", "\xC1\xE1"},
    {'V', "v", "Vv", "\xC2\xE2"},        {'G', "g", "Gg", "\xC3\xE3"},
    {'D', "d", "Dd", "\xC4\xE4"},        {'\\', "|\\", "\xD0\xF0", "\x80\x90"},
    {'E', "e", "Ee", "\xC5\xE5"},        {'@', "`", "\x8E\x9E", "\xC6\xE6"},
    {'Z', "z", "Zz", "\xC7\xE7"},        {'I', "i", "Ii", "\xC8\xE8"},
    {'J', "j", "Jj", "\xA3\xBC"},        {'K', "k", "Kk", "\xCA\xEA"},
    {'L', "l", "Ll", "\xCB\xEB"},        {'Q', "q", "Qq", "\x8A\x9A"},
    {'M', "m", "Mm", "\xCC\xEC"},        {'N', "n", "Nn", "\xCD\xED"},
    {'W', "w", "Ww", "\x8C\x9C"},        {'O', "o", "Oo", "\xCE\xEE"},
    {'P', "p", "Pp", "\xCF\xEF"},        {'R', "r", "Rr", "\xD0\xF0"},
    {'S', "s", "Ss", "\xD1\xF1"},        {'T', "t", "Tt", "\xD2\xF2"},
    {']', "}]", "\xC6\xE6", "\x8E\x9E"}, {'U', "u", "Uu", "\xD3\xF3"},
    {'F', "f", "Ff", "\xD4\xF4"},        {'H', "h", "Hh", "\xD5\xF5"},
    {'C', "c", "Cc", "\xD6\xF6"},        {'^', "~", "\xC8\xE8", "\xD7\xF7"},
    {'X', "x", "Xx", "\x8F\x9F"},        {'[', "{[", "\x8A\x9A", "\xD8\xF8"},
};
// clang-format on

const std::map<char, std::string> digraphs = {{'Q', "Lj"}, {'W', "Nj"}, {'X', "D`"}};

/// The letter of which a text of its row holds the character, or 0.
char StoredOf(char character, const char* Letter::*text) {
  for (const Letter& letter : letters)
    if (std::string(letter.*text).find(character) != std::string::npos) return letter.stored;
  return 0;
}

TEST(LetterConversion, TypesEachLetterInEveryScriptAndLayout) {
  for (int code = 0; code < 256; ++code) {
    SCOPED_TRACE(code);
    const char key = static_cast<char>(code);
    const auto expect = [&](const Writing& writing, const char* Letter::*keys) {
      const TypedLetter typed = LetterOfKey(code, writing);
      EXPECT_EQ(typed.stored, StoredOf(key, keys));
      EXPECT_EQ(typed.shown, typed.stored == 0 ? "" : ShownLetter(typed.stored, writing));
    };
    expect(latin_ascii, &Letter::keys);
    expect(cyrillic_ascii, &Letter::keys);
    expect(latin_page, &Letter::latin);
    expect(cyrillic_page, &Letter::cyrillic);
    const bool is_letter = key >= 'a' && key <= 'z';
    EXPECT_EQ(LetterOfKey(code, english).stored, is_letter ? key - 'a' + 'A' : 0);
  }
  EXPECT_EQ(LetterOfKey(256 + 'a', latin_ascii).stored, 0);
}

TEST(LetterConversion, ShowsEachLetterInEveryScriptAndLayout) {
  for (const Letter& letter : letters) {
    SCOPED_TRACE(letter.stored);
    const std::string stored(1, letter.stored);
    const auto digraph = digraphs.find(letter.stored);
    const bool whole = digraph == digraphs.end();
    EXPECT_EQ(ShownLetter(letter.stored, english), stored);
    EXPECT_EQ(ShownLetter(letter.stored, cyrillic_ascii), stored);
    EXPECT_EQ(ShownLetter(letter.stored, cyrillic_page), std::string(1, letter.cyrillic[0]));
    EXPECT_EQ(ShownLetter(letter.stored, latin_ascii), whole ? stored : digraph->second);
    EXPECT_EQ(ShownLetter(letter.stored, latin_page), whole ? std::string(1, letter.latin[0])
                                                      : letter.stored == 'X' ? "D\x9E"
                                                                             : digraph->second);
  }
}

TEST(LetterConversion, ShowsTexts) {
  EXPECT_EQ(ShownClue("3: Quq i wIVA, x~{y 1", latin_ascii), "3: LjULj I NjIVA, D`^[y 1");
  EXPECT_EQ(ShownClue("{}|`~ @x q", latin_page), "\x8A\xC6\xD0\x8E\xC8 \x8E\x44\x9E Lj");
  EXPECT_EQ(ShownClue("Qubav x", cyrillic_ascii), "QUBAV X");
  EXPECT_EQ(ShownClue("1: Qubav-y", cyrillic_page), "1: \x8A\xD3\xC1\xC0\xC2-y");
  EXPECT_EQ(ShownClue("quay x{", english), "QUAY X{");
  EXPECT_EQ(ShownText("Najve}i Qudi, wive i xep", latin_page), "Najve}i Ljudi, njive i d`ep");
  EXPECT_EQ(ShownText("Qudi", cyrillic_page), "Qudi");
  EXPECT_EQ(azbuka(false), "ABVGD\\E@ZIJKLQMNWOPRST]UFHC^X[");
}

}  // namespace
}  // namespace kalvon::testing
