// SPDX-License-Identifier: MIT
#include "letters/unicode_text.h"

#include <algorithm>

#include "letters/serbian_letters.h"

namespace kalvon {

namespace {

constexpr std::string_view non_joiner = "\u200C";
/// Stands in a text on its way where two letters are no digraph.
constexpr char apart = '\x01';

struct Spelling {
  char stored;
  std::string_view text;
};
constexpr Spelling single_digraphs[] = {
    {'Q', "Ǉ"}, {'Q', "ǈ"}, {'q', "ǉ"}, {'W', "Ǌ"}, {'W', "ǋ"},
    {'w', "ǌ"}, {'X', "Ǆ"}, {'X', "ǅ"}, {'x', "ǆ"},
};

/// Words in which two letters stay two, by a prefix or from abroad: what precedes the letters, and
/// what begins with them.
struct Parted {
  std::string_view before;
  std::string_view from_first;
};
constexpr Parted parted[] = {
    {"i", "njekc"}, {"ko", "njug"}, {"ko", "njunk"}, {"ta", "njug"}, {"va", "njezi"},
    {"na", "d`iv"}, {"na", "d`nj"}, {"o", "d`iv"},   {"o", "d`al"},  {"po", "d`up"},
};

struct Pair {
  char first;
  char second;
  char digraph;
};
constexpr Pair pairs[] = {{'l', 'j', 'q'}, {'n', 'j', 'w'}, {'d', '`', 'x'}};

constexpr char to_small = 'a' - 'A';
bool IsCapital(char stored) { return stored >= '@' && stored <= '^'; }
char Small(char stored) {
  return IsCapital(stored) ? static_cast<char>(stored + to_small) : stored;
}

std::string InSmall(std::string_view stored) {
  std::string small(stored);
  std::ranges::transform(small, small.begin(), Small);
  return small;
}

/// The digraph that two stored letters are read as, in the case of the first; 0 for none.
char DigraphOf(char first, char second) {
  for (const Pair& pair : pairs) {
    if (Small(first) == pair.first && Small(second) == pair.second)
      return IsCapital(first) ? static_cast<char>(pair.digraph - to_small) : pair.digraph;
  }
  return '\0';
}

/// Whether the two letters at a place of a text in small letters are two.
bool AreTwo(std::string_view small, std::size_t place) {
  return std::ranges::any_of(parted, [&](const Parted& word) {
    return small.substr(0, place).ends_with(word.before) &&
           small.substr(place).starts_with(word.from_first);
  });
}

/// Whether a text may begin so, by its first byte, which tells most letters apart.
bool MayBegin(std::string_view text, std::string_view beginning) {
  return !text.empty() && !beginning.empty() && text.front() == beginning.front();
}

bool TakeOff(std::string_view& text, std::string_view beginning) {
  if (!MayBegin(text, beginning) || !text.starts_with(beginning)) return false;
  text.remove_prefix(beginning.size());
  return true;
}

char TakeCyrillic(std::string_view& text) {
  const bool is_ascii = text.empty() || (text.front() & 0x80) == 0;
  if (is_ascii) return '\0';
  for (const SerbianLetter& letter : SerbianLetters())
    if (TakeOff(text, letter.cyrillic)) return letter.stored;
  for (const Spelling& digraph : single_digraphs)
    if (TakeOff(text, digraph.text)) return digraph.stored;
  return '\0';
}

char TakeLatin(std::string_view& text, bool digraphs) {
  for (const SerbianLetter& letter : SerbianLetters()) {
    if (!MayBegin(text, letter.latin)) continue;
    const bool is_digraph = std::string_view("QWXqwx").find(letter.stored) != std::string::npos;
    if ((digraphs || !is_digraph) && TakeOff(text, letter.latin)) return letter.stored;
  }
  return '\0';
}

/// The letters one by one, with marks where two are no digraph.
std::string LetterByLetter(std::string_view text) {
  std::string stored;
  while (!text.empty()) {
    if (const char latin = TakeLatin(text, false); latin != '\0') {
      stored += latin;
    } else if (const char cyrillic = TakeCyrillic(text); cyrillic != '\0') {
      (stored += cyrillic) += apart;
    } else if (TakeOff(text, non_joiner)) {
      stored += apart;
    } else {
      stored += text.front();
      text.remove_prefix(1);
    }
  }
  return stored;
}

std::string_view Spelled(char stored, bool latin) {
  const auto letters = SerbianLetters();
  const auto letter = std::ranges::find(letters, stored, &SerbianLetter::stored);
  if (letter == letters.end()) return {};
  return latin ? letter->latin : letter->cyrillic;
}

/// Whether a capital digraph is written in two capitals: it stands in a word of capitals.
bool InCapitals(std::string_view stored, std::size_t place) {
  if (place + 1 < stored.size() && Small(stored[place + 1]) >= '`')
    return IsCapital(stored[place + 1]);
  return place > 0 && IsCapital(stored[place - 1]);
}

}  // namespace

char TakeLetter(std::string_view& text) {
  const char latin = TakeLatin(text, true);
  return latin != '\0' ? latin : TakeCyrillic(text);
}

std::string StoredText(std::string_view text) {
  const std::string letters = LetterByLetter(text);
  const std::string small = InSmall(letters);
  std::string stored;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const char next = i + 1 < letters.size() ? letters[i + 1] : '\0';
    const char digraph = DigraphOf(letters[i], next);
    if (digraph != '\0' && !AreTwo(small, i)) {
      stored += digraph;
      ++i;
    } else if (letters[i] != apart) {
      stored += letters[i];
    }
  }
  return stored;
}

std::string UnicodeText(std::string_view stored, bool latin) {
  const std::string small = InSmall(stored);
  std::string text;
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const std::string_view letter = Spelled(stored[i], latin);
    if (letter.empty())
      text += stored[i];
    else if (latin && letter.size() > 1 && IsCapital(stored[i]) && InCapitals(stored, i))
      text += UnicodeCapital(stored[i], latin);
    else
      text += letter;
    const char next = i + 1 < stored.size() ? stored[i + 1] : '\0';
    if (latin && DigraphOf(stored[i], next) != '\0' && !AreTwo(small, i)) text += non_joiner;
  }
  return text;
}

std::string TextIn(std::string_view text, bool latin) {
  std::string shown;
  while (!text.empty()) {
    std::string_view rest = text;
    while (TakeLetter(rest) != '\0' || TakeOff(rest, non_joiner)) {
    }
    const std::size_t letters = text.size() - rest.size();
    shown += UnicodeText(StoredText(text.substr(0, letters)), latin);
    shown += rest.substr(0, 1);
    text.remove_prefix(std::min(letters + 1, text.size()));
  }
  return shown;
}

std::string UnicodeCapital(char stored, bool latin) {
  const std::string_view spelled = Spelled(stored, latin);
  if (latin && stored == 'Q') return "LJ";
  if (latin && stored == 'W') return "NJ";
  if (latin && stored == 'X') return "DŽ";
  return spelled.empty() ? std::string(1, stored) : std::string(spelled);
}

}  // namespace kalvon
