// SPDX-License-Identifier: MIT
#include "solving/word_editor.h"

#include "solving/solving_test.h"

namespace kalvon::testing {
namespace {

class WordEditorTest : public SolvingTest {
 protected:
  /// The letters in the editor, and the position with the focus.
  void ExpectEditor(const std::string& text, int position) {
    EXPECT_EQ(glavni.rec_tekst, text);
    EXPECT_EQ(glavni.rec_poz, position);
    EXPECT_EQ(FocusedControl(), "txt_rec(" + std::to_string(position) + ")");
  }
};

struct Editing {
  const char* name;
  const char* keys;
  const char* text;
  int position;
  const char* boxes;
};

const std::vector<Editing> editings = {
    {"nothing yet", "", "___", 0, "_|_|_|"},
    {"letters go on to the next box", "q x", "QX_", 2, "Lj|D`|_|"},
    {"and are overwritten in the last", "q x w k", "QXK", 2, "Lj|D`|K|"},
    {"left stops at the first box", "q Left Left w", "W__", 1, "Nj|_|_|"},
    {"up is left, right and down stop at the last", "Down Right Down Up k", "_K_", 2, "_|K|_|"},
    {"backspace blanks and goes back", "q x w Backspace Backspace", "Q__", 0, "Lj|_|_|"},
    {"but stays in the first box", "q Left Backspace", "___", 0, "_|_|_|"},
    {"delete blanks and stays", "q x Left Delete Delete", "Q__", 1, "Lj|_|_|"},
    {"space blanks and goes on", "q x w Home Space", "_XW", 1, "_|D`|Nj|"},
    {"but stays in the last box", "q x w Space", "QX_", 2, "Lj|D`|_|"},
    {"home and end", "End w Home q End Left", "Q_W", 1, "Lj|_|Nj|"},
    {"brackets are letters", "{ ] |", "[]\\", 2, "[|]|\\|"},
    {"characters with codes of editing keys are no keys", "q x w Left .%&'(#$-", "QXW", 1,
     "Lj|D`|Nj|"},
    {"capitals, digits and others are refused", "q Left ABY@^1y,", "Q__", 0, "Lj|_|_|"},
};

TEST_F(WordEditorTest, EditsTheWordByKeys) {
  Solve({.rows = puzzle_rows});
  for (const Editing& editing : editings) {
    SCOPED_TRACE(editing.name);
    Keys("Enter");  // Nothing was typed, so it only fills the boxes anew.
    Keys(editing.keys);
    ExpectEditor(editing.text, editing.position);
    EXPECT_EQ(Boxes(), editing.boxes);
    ClickCell(4, 1);
    EXPECT_EQ(glavni.rec_tekst, editing.text) << "a blocked cell changes nothing";
    ClickCell(5, 2);
    ClickCell(1, 1);
    EXPECT_EQ(Selection(), word_qxw);
  }
  EXPECT_EQ(Letters(), std::vector<std::string>(4, "     ")) << "nothing was entered";
}

TEST_F(WordEditorTest, TypesIntoTheBoxThatWasClicked) {
  Solve({.rows = puzzle_rows});
  QTest::mouseClick(Widget("txt_rec(1)"), Qt::LeftButton);
  Keys("k");
  ExpectEditor("_K_", 2);
  QTest::mouseClick(Widget("txt_rec(0)"), Qt::LeftButton);
  Keys("Left");
  ExpectEditor("_K_", 1);
}

TEST_F(WordEditorTest, RefusesLettersPastTheEndOfTheWord) {
  Solve({.rows = puzzle_rows});
  for (const char* box : {"txt_rec(3)", "txt_rec(14)"}) {
    QTest::mouseClick(Widget(box), Qt::LeftButton);
    Keys("k");
    ExpectEditor("___", 0);
    EXPECT_EQ(Boxes(), "_|_|_|");
  }
}

struct Entry {
  const char* name;
  std::vector<std::string> before;  // The user's letters.
  const char* keys;
  std::vector<std::string> after;
};

const std::vector<Entry> entries = {
    {"into empty cells", {}, "q x Enter", {"QX   ", "     ", "     ", "     "}},
    {"over other letters", {"ABC"}, "q Right w Enter", {"QBW  ", "     ", "     ", "     "}},
    {"blanks", {"ABC"}, "Space Right Space Enter", {" B   ", "     ", "     ", "     "}},
    {"a blank at a crossing", {"A", "B"}, "Delete Enter", {"     ", "B    ", "     ", "     "}},
    {"twice", {}, "q Enter Right w Enter", {"QW   ", "     ", "     ", "     "}},
    {"letters that were there", {"ABC", "D"}, "Enter", {"ABC  ", "D    ", "     ", "     "}},
};

TEST_F(WordEditorTest, EntersTheWordIntoItsCells) {
  for (const Entry& entry : entries) {
    SCOPED_TRACE(entry.name);
    Solve({.rows = puzzle_rows, .letters = entry.before});
    Keys(entry.keys);
    EXPECT_EQ(Letters(), entry.after);
    EXPECT_EQ(Cell(1, 1)[0], 'Q');
    EXPECT_TRUE(Cell(1, 1).ends_with("$0$1$1$00"));
    EXPECT_EQ(MarkedCells(), VisibleCells(word_qxw));
    EXPECT_EQ(glavni.rec_poz, 0);
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
  }
}

TEST_F(WordEditorTest, KeepsWhatItDoesNotKnowOfACell) {
  std::string qvm = Qvm(puzzle_rows);
  qvm.replace(qvm.find("Q$0$1$1$00"), 10, "QAB$x$1$1$00$more");
  Solve(qvm);
  Keys("Enter");
  EXPECT_EQ(Cell(1, 1), "QAB$x$1$1$00$more");
  Keys("m Enter");
  EXPECT_EQ(Cell(1, 1), "QMB$x$1$1$00$more");
}

TEST_F(WordEditorTest, ShowsTheLettersOfCrossingWords) {
  Solve({.rows = puzzle_rows});
  Keys("q Enter");
  ClickCell(1, 1);
  ExpectEditor("Q___", 0);
  EXPECT_EQ(Boxes(), "Lj|_|_|_|");
  Keys("Right a");
  ClickCell(3, 2);  // Not entered, so it is lost.
  ClickCell(1, 2);
  ExpectEditor("Q___", 0);
}

TEST_F(WordEditorTest, StaysValidWithAWordOfOneLetter) {
  std::string qvm = Qvm(puzzle_rows);
  qvm.replace(qvm.find("K$0$0$1$00\r\n001"), 15, "K$0$0$1$00\r\n011");
  Solve(qvm);
  ClickCell(5, 1);
  ASSERT_EQ(Selection(), (Word{1, 5, 1, 5, 1}));
  Keys("Right Down End k");
  ExpectEditor("K", 0);
  Keys("Space Backspace m Enter");
  EXPECT_EQ(Letters()[0], "    M");
}

TEST_F(WordEditorTest, StaysValidWithoutAWord) {
  Solve({.rows = puzzle_rows, .letters = {"ABCDE", "F", "G"}});
  const std::vector<std::string> letters = Letters();
  ClickCell(1, 3);
  for (const char* key : {"q", "Delete", "Backspace", "Space", "End", "Home", "Right", "Enter"}) {
    Keys(key);
    ExpectEditor("", 0);
    EXPECT_EQ(Boxes(), "") << key;
  }
  EXPECT_EQ(Letters(), letters);
}

TEST_F(WordEditorTest, EditsOnlyTheBoxesOfALongWord) {
  Solve({.rows = {std::string(18, 'A')}, .letters = {"BBBBBBBBBBBBBBBBBC"}});
  Keys("End k Right Right Space End Backspace End m");
  ExpectEditor("BBBBBBBBBBBBBBMBBC", 14);
  EXPECT_EQ(Boxes().substr(24), "B|B|M|");
  Keys("Enter");
  EXPECT_EQ(Letters()[0], "BBBBBBBBBBBBBBMBBC");
}

TEST_F(WordEditorTest, EntersOnlyIntoTheWordThatItShows) {
  Solve({.rows = puzzle_rows});
  Keys("q x w");
  glavni.smer = 2;
  glavni.rec_x1 = 4;
  Keys("Enter");
  EXPECT_EQ(Letters(), (std::vector<std::string>{"QXW  ", "     ", "     ", "     "}));
}

struct Typing {
  const char* name;
  int script, layout;  // As the options count them: Cyrillic and YU ASCII are 0.
  const char* typed;
  const char* text;
  const char* boxes;
};

const std::vector<Typing> typings = {
    {"Latin, YU ASCII", 1, 0, "{xq", "[XQ", "[|D`|Lj|"},
    {"Cyrillic, YU ASCII", 0, 0, "{xq", "[XQ", "[|X|Q|"},
    {"Latin letters", 1, 1, "šXđ", "[X\\", "\x8A|D\x9E|\xD0|"},
    {"Cyrillic letters", 0, 1, "шЏј", "[XJ", "\xD8|\x8F|\xA3|"},
    {"Cyrillic letters in Latin script", 1, 1, "шЏЈ", "___", "_|_|_|"},
    {"Latin letters in Cyrillic script", 0, 1, "šXA", "___", "_|_|_|"},
};

TEST_F(WordEditorTest, TypesInEveryScriptAndLayout) {
  Solve({.rows = puzzle_rows});
  for (const Typing& typing : typings) {
    SCOPED_TRACE(typing.name);
    ClickButton("cmd_glavni(5)");
    frm_opcije->opt_opcije(typing.script).Value(true);
    frm_opcije->opt_opcije1(typing.layout).Value(true);
    ClickButton("cmd_opcije(0)");
    QApplication::setActiveWindow(Widget("frm_glavni"));
    frm_glavni->txt_rec(0).SetFocus();
    Type(typing.typed);
    EXPECT_EQ(glavni.rec_tekst, typing.text);
    EXPECT_EQ(Boxes(), typing.boxes);
  }
}

}  // namespace
}  // namespace kalvon::testing
