// SPDX-License-Identifier: MIT
#include "letters/letter_conversion.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "letters/typed_character.h"

namespace kalvon::testing {

constexpr Writing latin_ascii{};
constexpr Writing latin_page{.code_page = true};
constexpr Writing cyrillic_ascii{.latin = false};
constexpr Writing cyrillic_page{.latin = false, .code_page = true};
constexpr Writing english{.english = true};

// The 30 letters in their order: stored, and as capitals and small letters of the two code pages.
// The Latin one holds no digraphs; there their stored forms type them.
constexpr std::string_view stored = "ABVGD\\E@ZIJKLQMNWOPRST]UFHC^X[";
constexpr std::string_view latin_capital = "ABVGD\xD0\x45\x8EZIJKLQMNWOPRST\xC6UFHC\xC8X\x8A";
constexpr std::string_view latin_small = "abvgd\xF0\x65\x9Ezijklqmnwoprst\xE6ufhc\xE8x\x9A";
constexpr std::string_view cyrillic_capital =
    "\xC0\xC1\xC2\xC3\xC4\x80\xC5\xC6\xC7\xC8\xA3\xCA\xCB\x8A\xCC\xCD\x8C\xCE\xCF\xD0\xD1\xD2\x8E"
    "\xD3\xD4\xD5\xD6\xD7\x8F\xD8";
constexpr std::string_view cyrillic_small =
    "\xE0\xE1\xE2\xE3\xE4\x90\xE5\xE6\xE7\xE8\xBC\xEA\xEB\x9A\xEC\xED\x9C\xEE\xEF\xF0\xF1\xF2\x9E"
    "\xF3\xF4\xF5\xF6\xF7\x9F\xF8";
// What types them under YU ASCII; of the signs also those that the same keys give without Shift.
constexpr std::string_view keys = "abvgd|e`zijklqmnwoprst}ufhc~x{";
constexpr std::string_view more_keys = "     \\                ]      [";

const std::map<char, std::string> digraphs = {{'Q', "Lj"}, {'W', "Nj"}, {'X', "D`"}};

/// The letter at whose place one of two texts holds the character, or 0.
static char StoredOf(char character, std::string_view one, std::string_view other) {
  const std::size_t place = std::min(one.find(character), other.find(character));
  return character != ' ' && place < stored.size() ? stored[place] : '\0';
}

TEST(LetterConversion, TypesEachLetterInEveryScriptAndLayout) {
  for (int code = 0; code < 256; ++code) {
    SCOPED_TRACE(code);
    const char key = static_cast<char>(code);
    const auto expect = [&](const Writing& writing, std::string_view one, std::string_view other) {
      EXPECT_EQ(LetterOfKey(code, writing), StoredOf(key, one, other));
    };
    expect(latin_ascii, keys, more_keys);
    expect(cyrillic_ascii, keys, more_keys);
    expect(latin_page, latin_capital, latin_small);
    expect(cyrillic_page, cyrillic_capital, cyrillic_small);
    const bool is_letter = key >= 'a' && key <= 'z';
    EXPECT_EQ(LetterOfKey(code, {.english = true, .code_page = true}), 0);
    EXPECT_EQ(LetterOfKey(code, english), is_letter ? key - 'a' + 'A' : 0);
  }
  EXPECT_EQ(LetterOfKey(256 + 'a', latin_ascii), 0);
}

TEST(LetterConversion, ShowsEachLetterInEveryScriptAndLayout) {
  for (std::size_t i = 0; i < stored.size(); ++i) {
    SCOPED_TRACE(stored[i]);
    const std::string own(1, stored[i]);
    const auto digraph = digraphs.find(stored[i]);
    const bool whole = digraph == digraphs.end();
    for (const Writing& writing : {english, cyrillic_ascii})
      EXPECT_EQ(ShownLetter(stored[i], writing), own);
    EXPECT_EQ(ShownLetter(stored[i], cyrillic_page), cyrillic_capital.substr(i, 1));
    EXPECT_EQ(ShownLetter(stored[i], latin_ascii), whole ? own : digraph->second);
    EXPECT_EQ(ShownLetter(stored[i], latin_page), whole           ? latin_capital.substr(i, 1)
                                                  : own[0] == 'X' ? "D\x9E"
                                                                  : digraph->second);
  }
}

TEST(LetterConversion, ShowsTexts) {
  EXPECT_EQ(ShownClue("3: Quq i wIVA, x~{y 1", latin_ascii), "3: LjULj I NjIVA, D`^[y 1");
  EXPECT_EQ(ShownClue("{}|`~ @x q", latin_page), "\x8A\xC6\xD0\x8E\xC8 \x8E\x44\x9E Lj");
  EXPECT_EQ(ShownClue("1: Qubav-y", cyrillic_page), "1: \x8A\xD3\xC1\xC0\xC2-y");
  EXPECT_EQ(ShownClue("quay x{", english), "QUAY X{");
  EXPECT_EQ(ShownText("Najve}i Qudi, wive i xep", latin_page), "Najve}i Ljudi, njive i d`ep");
  EXPECT_EQ(azbuka(false), stored);
}

TEST(TypedCharacter, IsTheSameLetterOfTheChosenScript) {
  const std::tuple<const Writing&, std::u32string_view, std::u32string_view> rows[] = {
      {latin_page, U"жЖчЉњџѕǈǉǌж", U"žŽčQwxyQqwž"},  {latin_ascii, U"ђабqч[y", U"đabqč[y"},
      {cyrillic_page, U"žČqWxaǆǇ[1", U"жЧљЊџаџЉ[1"}, {cyrillic_ascii, U"žČqWǆ~", U"жЧqWџ~"},
      {english, U"абЉжЅžčшǉ", U"abQyYyčшq"},
  };
  for (const auto& [writing, typed, same] : rows) {
    std::u32string all;
    for (const char32_t character : typed) all += SameLetter(character, writing);
    EXPECT_TRUE(all == same) << int(typed.front());
  }
}

TEST(TypedCharacter, IsWhatTheKeyGivesWithoutCapsLock) {
  for (const auto& [off, on] : {std::pair(U'a', U'A'), {U'š', U'Š'}, {U'y', U'Y'}, {U'ж', U'Ж'}}) {
    EXPECT_EQ(WithoutCapsLock(off, false), off);
    EXPECT_EQ(WithoutCapsLock(on, false), off);
    EXPECT_EQ(WithoutCapsLock(on, true), on);
    EXPECT_EQ(WithoutCapsLock(off, true), on);
  }
  EXPECT_EQ(WithoutCapsLock(U'{', true), U'{');
}

TEST(TypedCharacter, ThatIsRefusedHasAReason) {
  const std::tuple<char32_t, const Writing&, bool, Refusal> rows[] = {
      {U'ж', latin_page, false, Refusal::other_keyboard},
      {U'č', cyrillic_ascii, false, Refusal::other_keyboard},
      {U'ǉ', cyrillic_page, false, Refusal::other_keyboard},
      {U'б', english, false, Refusal::other_keyboard},
      {U'A', latin_ascii, false, Refusal::capital},
      {U'Ж', latin_ascii, true, Refusal::capital},
      {U'A', english, false, Refusal::capital},
      {U'[', latin_page, true, Refusal::other_layout},
      {U'`', cyrillic_page, false, Refusal::other_layout},
      {U'[', english, false, Refusal::no_letter},
      {U'š', english, true, Refusal::no_letter},
      {U'y', latin_page, false, Refusal::no_letter},
      {U'Ѕ', latin_page, false, Refusal::no_letter},
      {U'1', cyrillic_ascii, true, Refusal::no_letter},
  };
  for (const auto& [character, writing, all, why] : rows)
    EXPECT_EQ(WhyRefused(character, writing, all), why) << int(character);
}

}  // namespace kalvon::testing
