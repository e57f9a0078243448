// SPDX-License-Identifier: MIT
#include "letters/alphabet.h"

#include <algorithm>

namespace kalvon {

namespace {

// The keys \, ] and [ type without Shift what | } { type with it; @ and ^ are no keys.
constexpr AlphabetLetter alphabet[] = {
    {'A', "a", 'A', 'a', '\xC0', '\xE0'},        {'B', "b", 'B', 'b', '\xC1', '\xE1'},
    {'V', "v", 'V', 'v', '\xC2', '\xE2'},        {'G', "g", 'G', 'g', '\xC3', '\xE3'},
    {'D', "d", 'D', 'd', '\xC4', '\xE4'},        {'\\', "|\\", '\xD0', '\xF0', '\x80', '\x90'},
    {'E', "e", 'E', 'e', '\xC5', '\xE5'},        {'@', "`", '\x8E', '\x9E', '\xC6', '\xE6'},
    {'Z', "z", 'Z', 'z', '\xC7', '\xE7'},        {'I', "i", 'I', 'i', '\xC8', '\xE8'},
    {'J', "j", 'J', 'j', '\xA3', '\xBC'},        {'K', "k", 'K', 'k', '\xCA', '\xEA'},
    {'L', "l", 'L', 'l', '\xCB', '\xEB'},        {'Q', "q", 'Q', 'q', '\x8A', '\x9A'},
    {'M', "m", 'M', 'm', '\xCC', '\xEC'},        {'N', "n", 'N', 'n', '\xCD', '\xED'},
    {'W', "w", 'W', 'w', '\x8C', '\x9C'},        {'O', "o", 'O', 'o', '\xCE', '\xEE'},
    {'P', "p", 'P', 'p', '\xCF', '\xEF'},        {'R', "r", 'R', 'r', '\xD0', '\xF0'},
    {'S', "s", 'S', 's', '\xD1', '\xF1'},        {'T', "t", 'T', 't', '\xD2', '\xF2'},
    {']', "}]", '\xC6', '\xE6', '\x8E', '\x9E'}, {'U', "u", 'U', 'u', '\xD3', '\xF3'},
    {'F', "f", 'F', 'f', '\xD4', '\xF4'},        {'H', "h", 'H', 'h', '\xD5', '\xF5'},
    {'C', "c", 'C', 'c', '\xD6', '\xF6'},        {'^', "~", '\xC8', '\xE8', '\xD7', '\xF7'},
    {'X', "x", 'X', 'x', '\x8F', '\x9F'},        {'[', "{[", '\x8A', '\x9A', '\xD8', '\xF8'},
};

template <typename Test>
const AlphabetLetter* Find(Test test) {
  const auto* const found = std::ranges::find_if(alphabet, test);
  return found == std::end(alphabet) ? nullptr : found;
}

}  // namespace

std::span<const AlphabetLetter> SerbianAlphabet() { return alphabet; }

const AlphabetLetter* LetterOfStored(char stored) {
  return Find([=](const AlphabetLetter& letter) { return letter.stored == stored; });
}

const AlphabetLetter* LetterOfAsciiKey(char key) {
  return Find([=](const AlphabetLetter& letter) {
    return letter.keys.find(key) != std::string_view::npos;
  });
}

}  // namespace kalvon
