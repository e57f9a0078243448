// SPDX-License-Identifier: MIT
#include "letters/transliteration.h"

#include <algorithm>
#include <iterator>

namespace kalvon {

namespace {

struct Pair {
  std::string_view latin;
  std::string_view cyrillic;
};

/// The digraphs stand before the letters with which they begin.
constexpr Pair pairs[] = {
    {"lj", "љ"}, {"Lj", "Љ"}, {"nj", "њ"}, {"Nj", "Њ"}, {"dž", "џ"}, {"Dž", "Џ"}, {"a", "а"},
    {"b", "б"},  {"v", "в"},  {"g", "г"},  {"d", "д"},  {"đ", "ђ"},  {"e", "е"},  {"ž", "ж"},
    {"z", "з"},  {"i", "и"},  {"j", "ј"},  {"k", "к"},  {"l", "л"},  {"m", "м"},  {"n", "н"},
    {"o", "о"},  {"p", "п"},  {"r", "р"},  {"s", "с"},  {"t", "т"},  {"ć", "ћ"},  {"u", "у"},
    {"f", "ф"},  {"h", "х"},  {"c", "ц"},  {"č", "ч"},  {"š", "ш"},  {"A", "А"},  {"B", "Б"},
    {"V", "В"},  {"G", "Г"},  {"D", "Д"},  {"Đ", "Ђ"},  {"E", "Е"},  {"Ž", "Ж"},  {"Z", "З"},
    {"I", "И"},  {"J", "Ј"},  {"K", "К"},  {"L", "Л"},  {"M", "М"},  {"N", "Н"},  {"O", "О"},
    {"P", "П"},  {"R", "Р"},  {"S", "С"},  {"T", "Т"},  {"Ć", "Ћ"},  {"U", "У"},  {"F", "Ф"},
    {"H", "Х"},  {"C", "Ц"},  {"Č", "Ч"},  {"Š", "Ш"},
};

}  // namespace

std::string InScript(std::string_view text, bool latin) {
  std::string shown;
  bool kept = latin;
  while (!text.empty()) {
    const auto begins = [&](const Pair& pair) { return text.starts_with(pair.latin); };
    const Pair* const pair = kept ? std::end(pairs) : std::ranges::find_if(pairs, begins);
    if (text.front() == '`') {
      kept = latin || !kept;
      text.remove_prefix(1);
    } else if (pair == std::end(pairs)) {
      shown += text.front();
      text.remove_prefix(1);
    } else {
      shown += pair->cyrillic;
      text.remove_prefix(pair->latin.size());
    }
  }
  return shown;
}

}  // namespace kalvon
