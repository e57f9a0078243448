// SPDX-License-Identifier: MIT
#include "letters/typed_character.h"

#include <algorithm>
#include <string_view>

#include "letters/alphabet.h"

namespace kalvon {

namespace {

using Letters = std::u32string_view;

// The same letters in the same places, first the capitals. The Latin keyboard gives Lj, Nj and Dž
// by Q, W and X. The last ones are no letters of the alphabet.
constexpr Letters latin =
    U"ABVGDĐEŽZIJKLQMNWOPRSTĆUFHCČXŠY"
    U"abvgdđežzijklqmnwoprstćufhcčxšy";
constexpr Letters cyrillic =
    U"АБВГДЂЕЖЗИЈКЛЉМНЊОПРСТЋУФХЦЧЏШЅ"
    U"абвгдђежзијклљмнњопрстћуфхцчџшѕ";
constexpr std::size_t capitals = latin.size() / 2;
static_assert(cyrillic.size() == latin.size());

// The digraph letters as single characters, and the keys that give them.
constexpr Letters single_digraphs = U"ǇǈǉǊǋǌǄǅǆ";
constexpr Letters digraph_keys = U"QQqWWwXXx";

// What the Serbian keyboards have on the key that gives Y.
constexpr Letters on_key_y = U"ŽžЖжЅѕ";
constexpr Letters key_y = U"YyYyYy";

/// What stands in the place of a character, or the character itself if it is not among them.
char32_t InPlace(char32_t character, Letters among, Letters instead) {
  const std::size_t place = among.find(character);
  return place == Letters::npos ? character : instead[place];
}

/// The place of a letter, capitals before small ones, or npos.
std::size_t PlaceOf(char32_t character) {
  return std::min(latin.find(character), cyrillic.find(character));
}

bool IsAscii(char32_t character) { return character < 0x80; }

/// Y is a letter in English alone, and nothing but the Latin letters are.
bool IsLetter(char32_t character, const Writing& writing) {
  const std::size_t place = PlaceOf(character);
  if (place == Letters::npos) return false;
  return writing.english ? IsAscii(character) : place % capitals != capitals - 1;
}

}  // namespace

char32_t SameLetter(char32_t character, const Writing& writing) {
  // Under YU ASCII the signs and letters of ASCII are keys of either script.
  if (!writing.code_page && IsAscii(character)) return character;
  char32_t same = InPlace(character, single_digraphs, digraph_keys);
  if (writing.english) {
    same = InPlace(InPlace(same, on_key_y, key_y), cyrillic, latin);
    return IsAscii(same) ? same : character;
  }
  return writing.latin ? InPlace(same, cyrillic, latin) : InPlace(same, latin, cyrillic);
}

char32_t WithoutCapsLock(char32_t character, bool shift) {
  const std::size_t place = PlaceOf(character);
  if (place == Letters::npos || (place < capitals) == shift) return character;
  const Letters letters = latin[place] == character ? latin : cyrillic;
  return letters[shift ? place - capitals : place + capitals];
}

Refusal WhyRefused(char32_t character, const Writing& writing, bool all_keyboards) {
  const char32_t same = SameLetter(character, writing);
  if (!IsLetter(same, writing)) {
    const bool is_sign = IsAscii(same) && LetterOfAsciiKey(static_cast<char>(same)) != nullptr;
    return is_sign && !writing.english ? Refusal::other_layout : Refusal::no_letter;
  }
  return same != character && !all_keyboards ? Refusal::other_keyboard : Refusal::capital;
}

}  // namespace kalvon
