// SPDX-License-Identifier: MIT
#include "exchange/jpz.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <QStringEncoder>

#include "crossword/direction.h"
#include "exchange/puzzle_text.h"

namespace kalvon::exchange {
namespace {

const Format& Jpz() { return *FormatOfEnding("jpz"); }

const std::string usual_cells =
    R"(<cell x="1" y="1" solution="C" number="1"/><cell x="2" y="1" solution="A" number="2"/>)"
    R"(<cell x="3" y="1" type="block"/><cell x="1" y="2" solution="B" number="3"/>)"
    R"(<cell x="2" y="2" solution="O"/><cell x="3" y="2" solution="T" number="4"/>)"
    R"(<cell x="1" y="3" type="void"/><cell x="2" y="3" solution="L" number="5"/>)"
    R"(<cell x="3" y="3" solution="O"/>)";
const std::string usual_words =
    R"(<word id="1" x="1-2" y="1"/><word id="2" x="1-3" y="2"/><word id="9" x="2" y="1-3"/>)";
const std::string usual_clues =
    R"(<clues><title><b>Across</b></title><clue word="1" number="1">a</clue>)"
    R"(<clue word="2" number="3">b</clue></clues>)"
    R"(<clues><title>Down</title><clue word="9" number="2">e</clue></clues>)";
const std::string usual_shown = "1C2A#/3BO4T/.5LO; 1A11 a; 3A12 b; 2D21 e";

/// A file of 3 by 3 cells; later cells replace the usual ones.
std::string File(const std::string& cells = "", const std::string& words = usual_words,
                 const std::string& clues = usual_clues) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<crossword-compiler-applet>"
         "<rectangular-puzzle><crossword><grid width=\"3\" height=\"3\">" +
         usual_cells + cells + "</grid>" + words + clues +
         "</crossword></rectangular-puzzle></crossword-compiler-applet>";
}

std::string Replaced(std::string text, const std::string& old, const std::string& by) {
  for (std::size_t place = 0; (place = text.find(old, place)) != std::string::npos;
       place += by.size())
    text.replace(place, old.size(), by);
  return text;
}

std::string Encoded(const std::string& text, const char* encoding) {
  QByteArray bytes = QStringEncoder(encoding).encode(QString::fromStdString(text));
  return bytes.toStdString();
}

/// An archive of one file after another that is no crossword.
std::string Zipped(const std::string& content) {
  zip_error_t error;
  zip_source_t* target = zip_source_buffer_create(nullptr, 0, 0, &error);
  zip_source_keep(target);
  zip_t* archive = zip_open_from_source(target, ZIP_TRUNCATE, &error);
  const std::string other = "image";
  zip_file_add(archive, "a.png", zip_source_buffer(archive, other.data(), other.size(), 0), 0);
  zip_file_add(archive, "b.xml", zip_source_buffer(archive, content.data(), content.size(), 0), 0);
  zip_close(archive);
  zip_stat_t size;
  zip_source_stat(target, &size);
  std::string bytes(size.size, '\0');
  zip_source_open(target);
  zip_source_read(target, bytes.data(), bytes.size());
  zip_source_close(target);
  zip_source_free(target);
  return bytes;
}

TEST(JpzTest, ReadsWhatFilesHold) {
  const std::string grid = "1C2A#/3BO4T/.5LO";
  const std::string cross = R"(<clues><title>Across</title><clue word="2" number="3">)";
  const std::string letters =
      R"(<cell x="1" y="1" solution="Č" number="1" solve-state="Š"/>)"
      R"(<cell x="2" y="1" solution="LJ" solve-state="A" hint="true"/><cell x="3" y="1" type="clue"/>)";
  const struct {
    std::string name;
    std::string bytes;
    std::string shown;
  } rows[] = {
      {"plain", File(), usual_shown},
      {"zipped", Zipped(File()), usual_shown},
      {"blanks before", "\xEF\xBB\xBF\n " + File(), usual_shown},
      {"wrong name spaces",
       Replaced(Replaced(File(), "<rectangular-puzzle", "<a:rectangular-puzzle xmlns='b'"),
                "/rectangular", "/a:rectangular"),
       usual_shown},
      {"another root", Replaced(File(), "compiler-applet", "compiler"), usual_shown},
      {"UTF-16", Encoded(File(letters), "UTF-16"),
       "1Č(Š)LJ(LJ)#/3BO4T/.5LO; 1A11 a; 3A12 b; 2D21 e"},
      {"Windows-1250", Encoded(Replaced(File(letters), "UTF-8", "windows-1250"), "windows-1250"),
       "1Č(Š)LJ(LJ)#/3BO4T/.5LO; 1A11 a; 3A12 b; 2D21 e"},
      {"words of cells, blanks",
       File(
           "", R"(<word id="2"><cells x="1-2" y="2"/><cells x="3" y="2"/></word>)",
           R"(<clues><title>Across</title><clue word="2" number="3" format="2,1">b</clue></clues>)"),
       "1C2A#/3BO|4T/.5LO; 3A12 b"},
      {"two words of a clue",
       File("", R"(<word id="2" x="1-2" y="1"><cells x="1-3" y="2"/></word>)",
            cross + "</clue></clues>"),
       grid + "; 3A11 "},
      {"no words", File("", ""), usual_shown},
      {"other titles", Replaced(Replaced(File("", ""), "Across", "1"), "Down", "2"), usual_shown},
      {"markup",
       File(
           "", usual_words,
           cross +
               R"(<i>a</i><br/>&eacute;&#353;&nosuch; &lt;b&gt;c&lt;/b&gt; <![CDATA[<sup>2</sup> < 3]]></clue></clues>)"),
       grid + "; 3A12 a éšnosuch; c 2 < 3"},
      {"looks",
       File(
           R"(<cell x="1" y="1" solution="C" number="1" background-shape="circle" background-color="#FF0000" right-bar="false"><background-picture/></cell>)"
           R"(<cell x="2" y="1" solution="A" number="2" background-color="#FFFFFF" right-bar="true"/>)"),
       usual_shown + "\nCircles in cells were left out\nColours of cells were left out\nPictures "
                     "behind cells were left out"},
      {"bars", File(R"(<cell x="1" y="1" right-bar="true"/>)"),
       "The words are divided by bars, which this program cannot show"},
      {"part of a run", File("", R"(<word id="2" x="1-2" y="2"/>)"),
       "The words are divided by bars, which this program cannot show"},
      {"bent", File("", R"(<word id="2"><cells x="1-3" y="2"/><cells x="3" y="3"/></word>)"),
       "The word 3 leaves its straight line"},
      {"off the grid", File("", R"(<word id="2" x="1-4" y="2"/>)"), "The file is damaged: 3"},
      {"coded", Replaced(File(), "crossword>", "coded>"), "It is no plain crossword: coded"},
      {"arrows", File(letters, "", ""), "It is no plain crossword: arrowword"},
  };
  for (const auto& row : rows) {
    EXPECT_TRUE(IsJpz(row.bytes)) << row.name;
    EXPECT_EQ(ReadAs(Jpz(), row.bytes), row.shown) << row.name;
  }
}

TEST(JpzTest, RefusesBadInput) {
  const std::string too_long = "The file is larger than any crossword";
  const std::string bomb = "<rectangular-puzzle>" + std::string(std::size_t{20} << 20, ' ');
  std::string lie = Zipped(bomb);
  const std::size_t directory = lie.rfind("PK\x01\x02");
  lie.replace(directory + 24, 4, std::string("\x09\0\0\0", 4));
  std::string attributes = "<crossword-compiler ";
  for (int i = 0; i < 1001; ++i) attributes += "a" + std::to_string(i) + "='' ";
  std::string deep = "<crossword-compiler>";
  for (int i = 0; i < 64; ++i) deep += "<a>";
  std::string words;
  for (int i = 0; i < 20000; ++i) words += R"(<word id="a" x="1-9999" y="1"/>)";
  const std::pair<std::string, std::string> rows[] = {
      {bomb, too_long},
      {Zipped(bomb), too_long},
      {lie, too_long},
      {attributes + "/>", too_long},
      {File("", words), too_long},
      {File("", usual_words, std::string(70000, 'x')), usual_shown.substr(0, 16)},
      {File("", usual_words, "<clues><clue>" + std::string(70000, 'x') + "</clue></clues>"),
       too_long},
      {deep, "The file is damaged: XML"},
      {File().substr(0, 300), "The file is damaged: XML, 2:261"},
      {Zipped("text"), "The content is no crossword of a known format"},
      {std::string("PK\x03\x04") + "text", "The file is damaged: zip"},
      {"<rectangular-puzzle/>", "The file is damaged: grid"},
      {"<!DOCTYPE a [<!ENTITY b 'c'>]><rectangular-puzzle>&b;</rectangular-puzzle>",
       "The file is damaged: <!ENTITY"},
      {"<!DOCTYPE a SYSTEM 'file:///etc/passwd'>" + File().substr(39), usual_shown},
      {Replaced(File(), "width=\"3\"", "width=\"1000000000\""),
       "The crossword has more than 16383 cells"},
      {Replaced(File(), "width=\"3\"", "width=\"\""), "The crossword has no cells"},
      {File("<cell/>"), "The file is damaged: cell"},
  };
  for (const auto& [bytes, shown] : rows)
    EXPECT_EQ(ReadAs(Jpz(), bytes), shown) << bytes.substr(0, 200);
  for (const char* other : {"", "<html>", "crossword-compiler", "{}"})
    EXPECT_FALSE(IsJpz(other)) << other;
}

TEST(JpzTest, WritesWhatItReads) {
  std::mt19937 random(14);
  for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i)
    ExpectRoundTrip(Jpz(), RandomPuzzle(random));
}

}  // namespace
}  // namespace kalvon::exchange
