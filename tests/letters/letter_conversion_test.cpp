// SPDX-License-Identifier: MIT
#include "letters/letter_conversion.h"

#include <iconv.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_opcije.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

std::string ShownLetter(char stored) { return kalvon::ShownLetter(stored, ChosenWriting()); }
std::string ShownText(std::string_view text) { return kalvon::ShownText(text, ChosenWriting()); }
TypedLetter LetterOfKey(int code) { return kalvon::LetterOfKey(code, ChosenWriting()); }
void slovo_digraf(std::string_view letter) {
  glavni.znak = kalvon::slovo_digraf(letter, ChosenWriting());
}
void slovo_cirilica(std::string_view letter) {
  glavni.znak = kalvon::slovo_cirilica(letter, ChosenWriting());
}
void slovo_veliko(std::string_view letter) {
  glavni.znak = kalvon::slovo_veliko(letter, ChosenWriting());
}

enum Script { cyrillic, latin };
enum Layout { yu_ascii, code_page };

void SetOptions(Script script, Layout layout) {
  frm_opcije->opt_opcije(script).Value(true);
  frm_opcije->opt_opcije1(layout).Value(true);
}

/// Decodes by the host's tables of the published code pages; "?" for a byte that stands for
/// nothing.
QString Decoded(const std::string& bytes, Script script) {
  iconv_t code = iconv_open("UTF-8", script == latin ? "WINDOWS-1250" : "WINDOWS-1251");
  std::string in = bytes;
  std::string out(4 * bytes.size(), '\0');
  char* from = in.data();
  char* to = out.data();
  std::size_t from_left = in.size();
  std::size_t to_left = out.size();
  const bool whole = iconv(code, &from, &from_left, &to, &to_left) != static_cast<std::size_t>(-1);
  iconv_close(code);
  return whole ? QString::fromUtf8(out.data(), to - out.data()) : QStringLiteral("?");
}

struct Letter {
  char stored;
  const char* keys;   // under YU ASCII
  const char* latin;  // in UTF-8
  const char* cyrillic;
};

const std::vector<Letter> alphabet = {
    {'A', "a", "A", "А"},  {'B', "b", "B", "Б"},    {'V', "v", "V", "В"},  {'G', "g", "G", "Г"},
    {'D', "d", "D", "Д"},  {'\\', "|\\", "Đ", "Ђ"}, {'E', "e", "E", "Е"},  {'@', "`", "Ž", "Ж"},
    {'Z', "z", "Z", "З"},  {'I', "i", "I", "И"},    {'J', "j", "J", "Ј"},  {'K', "k", "K", "К"},
    {'L', "l", "L", "Л"},  {'Q', "q", "Lj", "Љ"},   {'M', "m", "M", "М"},  {'N', "n", "N", "Н"},
    {'W', "w", "Nj", "Њ"}, {'O', "o", "O", "О"},    {'P', "p", "P", "П"},  {'R', "r", "R", "Р"},
    {'S', "s", "S", "С"},  {'T', "t", "T", "Т"},    {']', "}]", "Ć", "Ћ"}, {'U', "u", "U", "У"},
    {'F', "f", "F", "Ф"},  {'H', "h", "H", "Х"},    {'C', "c", "C", "Ц"},  {'^', "~", "Č", "Ч"},
    {'X', "x", "Dž", "Џ"}, {'[', "{[", "Š", "Ш"},
};

/// The stored letter of each of the 256 characters under YU ASCII, 0 for one that is no key.
std::string StoredOfKeys() {
  std::string stored(256, '\0');
  for (const Letter& letter : alphabet) {
    for (const char key : std::string(letter.keys)) {
      stored[static_cast<unsigned char>(key)] = letter.stored;
    }
  }
  return stored;
}

/// What a typed capital stands for under a code page: the letter of its script, with Q, W and X for
/// the Latin digraphs. 0 for none.
char StoredOfCapital(const QString& capital, Script script) {
  for (const Letter& letter : alphabet) {
    QString typed = QString::fromUtf8(script == latin ? letter.latin : letter.cyrillic);
    if (typed.size() == 2) typed = QLatin1Char(letter.stored);
    if (typed == capital) return letter.stored;
  }
  return 0;
}

class LetterConversionTest : public ProgramTest {};

TEST_F(LetterConversionTest, ShowsEachLetterInEveryScriptAndLayout) {
  for (const Letter& letter : alphabet) {
    SCOPED_TRACE(letter.latin);
    const std::string stored(1, letter.stored);
    SetOptions(latin, code_page);
    EXPECT_EQ(Decoded(ShownLetter(letter.stored), latin), QString::fromUtf8(letter.latin));
    SetOptions(cyrillic, code_page);
    EXPECT_EQ(Decoded(ShownLetter(letter.stored), cyrillic), QString::fromUtf8(letter.cyrillic));
    SetOptions(cyrillic, yu_ascii);
    EXPECT_EQ(ShownLetter(letter.stored), stored);
    SetOptions(latin, yu_ascii);
    const std::string digraph = letter.stored == 'X' ? "D`" : letter.latin;
    EXPECT_EQ(ShownLetter(letter.stored), std::string("QWX").find(stored) < 3 ? digraph : stored);
  }
}

TEST_F(LetterConversionTest, TypesOnlyTheKeysOfTheAlphabetUnderYuAscii) {
  const std::string expected = StoredOfKeys();

  for (const Script script : {cyrillic, latin}) {
    SetOptions(script, yu_ascii);
    for (int code = 0; code < 256; ++code) {
      SCOPED_TRACE(code);
      const TypedLetter typed = LetterOfKey(code);
      ASSERT_EQ(typed.stored, expected[static_cast<std::size_t>(code)]);
      EXPECT_EQ(typed.shown, typed.stored == 0 ? "" : ShownLetter(typed.stored));
    }
  }
}

TEST_F(LetterConversionTest, TypesTheLettersOfTheScriptUnderItsCodePage) {
  for (const Script script : {cyrillic, latin}) {
    SetOptions(script, code_page);
    for (int code = 0; code < 256; ++code) {
      SCOPED_TRACE(code);
      const QString character = Decoded(std::string(1, static_cast<char>(code)), script);
      const TypedLetter typed = LetterOfKey(code);
      ASSERT_EQ(typed.stored, StoredOfCapital(character.toUpper(), script));
      EXPECT_EQ(typed.shown, typed.stored == 0 ? "" : ShownLetter(typed.stored));
    }
  }
}

TEST_F(LetterConversionTest, MakesCapitalsOfSmallLettersAndNothingElse) {
  const std::string expected = StoredOfKeys();
  for (std::size_t code = 0; code < 256; ++code) {
    slovo_veliko(std::string(1, static_cast<char>(code)));
    EXPECT_EQ(glavni.znak, expected[code] == 0 ? "" : std::string(1, expected[code])) << code;
  }
}

struct Step {
  const char* name;
  Script script;
  Layout layout;
  void (*routine)(std::string_view);
  const char* input;
  const char* result;
};

const std::vector<Step> steps = {
    {"small lj", latin, yu_ascii, slovo_digraf, "q", "lj"},
    {"small nj", latin, code_page, slovo_digraf, "w", "nj"},
    {"small dz", latin, code_page, slovo_digraf, "x", "d`"},
    {"no digraph", latin, yu_ascii, slovo_digraf, "L", ""},
    {"no digraph in Cyrillic", cyrillic, yu_ascii, slovo_digraf, "Q", ""},
    {"nothing to convert", latin, yu_ascii, slovo_digraf, "", ""},
    {"national font needs no code page", latin, yu_ascii, slovo_cirilica, "[", ""},
    {"nor does the Cyrillic one", cyrillic, yu_ascii, slovo_cirilica, "A", ""},
    {"two letters that stay", latin, code_page, slovo_cirilica, "Lj", ""},
    {"two letters of which one changes", latin, code_page, slovo_cirilica, "D`", "D\x9E"},
    {"the second of them alone", latin, code_page, slovo_cirilica, "`", "\x9E"},
    {"plain letter", latin, code_page, slovo_cirilica, "A", ""},
    {"digraph not expanded", latin, code_page, slovo_cirilica, "Q", ""},
    {"small letter in Cyrillic", cyrillic, code_page, slovo_cirilica, "a", ""},
    {"grave accent in Cyrillic", cyrillic, code_page, slovo_cirilica, "`", ""},
};

TEST_F(LetterConversionTest, LeavesAnEmptyResultWhereTheInputStays) {
  for (const Step& step : steps) {
    SetOptions(step.script, step.layout);
    glavni.znak = "left over";
    step.routine(step.input);
    EXPECT_EQ(glavni.znak, step.result) << step.name;
  }
}

struct Clue {
  const char* name;
  Script script;
  Layout layout;
  const char* text;
  const char* shown;
};

const std::vector<Clue> clues = {
    {"Latin, national font", latin, yu_ascii, "3: Quq i wIVA, x~{y 1", "3: LjULj I NjIVA, D`^[y 1"},
    {"Latin, code page", latin, code_page, "{}|`~ @x q",
     "\x8A\xC6\xD0\x8E\xC8 \x8E"
     "D\x9E Lj"},
    {"Cyrillic, national font", cyrillic, yu_ascii, "Qubav x", "QUBAV X"},
    {"Cyrillic, code page", cyrillic, code_page, "1: Qubav-y", "1: \x8A\xD3\xC1\xC0\xC2-y"},
    {"empty", latin, code_page, "", ""},
};

TEST_F(LetterConversionTest, ConvertsTheTextOfTheLastRowOfAList) {
  for (const Clue& clue : clues) {
    SetOptions(clue.script, clue.layout);
    EXPECT_EQ(ShownClue(clue.text, ChosenWriting()), clue.shown) << clue.name;
  }
}

TEST_F(LetterConversionTest, ExpandsDigraphsOfRunningTextInItsCase) {
  SetOptions(latin, code_page);
  EXPECT_EQ(ShownText("Najve}i Qudi, wive i xep"), "Najve}i Ljudi, njive i d`ep");
  SetOptions(cyrillic, code_page);
  EXPECT_EQ(ShownText("Qudi"), "Qudi");
}

class EnglishLetterConversionTest : public ProgramTest {
 protected:
  EnglishLetterConversionTest() : ProgramTest(1) {}
};

TEST_F(EnglishLetterConversionTest, TypesTheTwentySixLettersAndNoDigraphs) {
  SetOptions(latin, yu_ascii);
  for (int code = 0; code < 256; ++code) {
    const TypedLetter typed = LetterOfKey(code);
    const bool letter = code >= 'a' && code <= 'z';
    EXPECT_EQ(typed.stored, letter ? code - 'a' + 'A' : 0) << code;
    EXPECT_EQ(typed.shown, std::string(letter ? 1 : 0, typed.stored)) << code;
  }
  SetOptions(latin, code_page);
  EXPECT_EQ(LetterOfKey('A').stored, 0);
}

}  // namespace
}  // namespace kalvon::testing
