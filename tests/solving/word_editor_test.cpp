// SPDX-License-Identifier: MIT
#include "solving/word_editor.h"

#include <QAction>
#include <QApplication>
#include <QInputMethodEvent>

#include "document/settings.h"
#include "shell/strip_texts.h"
#include "solving/undo.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

using WordEditor = PuzzleTest;

struct Editing {
  const char* name;
  const char* keys;
  const char* text;
  int position;
};

const Editing editings[] = {
    {"nothing yet", "", "___", 0},
    {"letters go on to the next box", "q x", "QX_", 2},
    {"and are overwritten in the last", "q x w k", "QXK", 2},
    {"left stops at the first box", "q Left Left w", "W__", 1},
    {"up is left, right and down stop at the last", "Down Right Down Up k", "_K_", 2},
    {"backspace blanks and goes back", "q x w Backspace Backspace", "Q__", 0},
    {"but stays in the first box", "q Left Backspace", "___", 0},
    {"delete blanks and stays", "q x Left Delete Delete", "Q__", 1},
    {"space blanks and goes on", "q x w Home Space", "_XW", 1},
    {"but stays in the last box", "q x w Space", "QX_", 2},
    {"home and end", "End w Home q End Left", "Q_W", 1},
    {"brackets are letters", "{ ] |", "[]\\", 2},
    {"characters with codes of editing keys are no keys", "q x w Left .%&'(#$-", "QXW", 1},
    {"capitals, digits and others are refused", "q Left ABY@^1y,", "Q__", 0},
    {"a box that was clicked", "q Box2 w Box0 Left", "Q_W", 1},
    {"a box past the end of the word", "q Box3 k Box14 k", "Q__", 1},
};

TEST_F(WordEditor, EditsTheWordByKeys) {
  for (const Editing& editing : editings) {
    SCOPED_TRACE(editing.name);
    Solve({.rows = puzzle_rows});
    Keys(editing.keys);
    EXPECT_EQ(glavni.rec_tekst, editing.text);
    EXPECT_EQ(glavni.rec_poz, editing.position);
    EXPECT_EQ(FocusedControl(), "txt_rec(" + std::to_string(editing.position) + ")");
    ExpectScreenOfState(true);
    ClickCell(4, 1);
    EXPECT_EQ(glavni.rec_tekst, editing.text) << "a blocked cell changes nothing";
    ClickCell(5, 2);
    ClickCell(1, 1);
    EXPECT_EQ(glavni.rec_tekst, "___") << "nothing was entered";
    ExpectScreenOfState();
  }
}

TEST_F(WordEditor, EntersTheWordIntoItsCells) {
  Solve({.rows = puzzle_rows, .letters = {"", "B"}});
  for (const auto& [keys, letters] : {std::pair{"q x Return", "QX   "},
                                      {"Right w Return", "QW   "},
                                      {"Return", "QW   "},
                                      {"End k Return", "QWK  "},
                                      {"Space Right Space Return", " W   "},
                                      {"m Delete Return", "M    "},
                                      {"Delete Return", "     "}}) {
    Keys(keys);
    EXPECT_EQ(Letters(), (std::vector<std::string>{letters, "B    ", "     ", "     "})) << keys;
    EXPECT_EQ(WithoutUserLetter(Cell(1, 1)), "Q$0$1$1$00");
    EXPECT_EQ(FocusedControl(), "txt_rec(0)");
    ExpectScreenOfState();
  }
}

TEST_F(WordEditor, WritesLettersAsTheyAreTypedIfThatIsChosenAsOneStepForEachWord) {
  glavni.upis_u_hodu = true;
  snimi_izbor();
  Solve(Qvm({"MIR", "A#A", "KIT"}));
  const auto letters = [] { return Letters()[0] + '|' + Letters()[2]; };
  for (const auto& [keys, expected] : {std::pair{"a b", "AB |   "},
                                       {"Left Delete", "A  |   "},
                                       {"Backspace b", "B  |   "},
                                       {"Alt+Down v", "B  |V  "},
                                       {"Left Space", "B  |   "},
                                       {"Ctrl+S v v Ctrl+S z", "B  | VZ"},
                                       {"Return a", "B  |AVZ"}}) {
    Keys(keys);
    EXPECT_EQ(letters(), expected) << keys;
    ExpectScreenOfState();
  }
  Restart();
  Load("p.qvm");
  EXPECT_EQ(letters(), "B  |AVZ") << "after a kill";
  for (const char* expected : {"B  | VZ", "B  | VV", "B  |   ", "   |   "}) {
    Keys("Ctrl+Z");
    EXPECT_EQ(letters(), expected);
  }
  EXPECT_FALSE(CanUndo());
}

TEST_F(WordEditor, SlidesTheBoxesOverALongWord) {
  Solve({.rows = {std::string(18, 'A'), "A" + std::string(17, '#')},
         .letters = {"BBBBBBBBBBBBBBBBBC"}});
  const std::tuple<const char*, const char*, int, int> steps[] = {
      {"Box14 k", "BBBBBBBBBBBBBBKBBC", 1, 15},
      {"l", "BBBBBBBBBBBBBBKLBC", 2, 16},
      {"Box0 m", "BBMBBBBBBBBBBBKLBC", 2, 3},
      {"End Backspace Left Space", "BBMBBBBBBBBBBBK_B_", 3, 16},
      {"Left Left n Home", "BBMBBBBBBBBBBBN_B_", 0, 0}};
  for (const auto& [keys, text, first, place] : steps) {
    Keys(keys);
    EXPECT_EQ(std::tuple(glavni.rec_tekst, glavni.rec_prvo, int(glavni.rec_poz)),
              std::tuple(text, first, place));
    EXPECT_EQ(FocusedControl(), "txt_rec(" + std::to_string(place - first) + ")");
    ExpectScreenOfState(true);
  }
  EXPECT_TRUE(TakeBackTyped());
  EXPECT_EQ(glavni.rec_poz, 14);
  Keys("End Return");
  EXPECT_EQ(Letters()[0], "BBMBBBBBBBBBBBK B ");
  ClickCell(1, 1);
  ExpectScreenOfState();
}

TEST_F(WordEditor, TakesLettersOfAllKeyboardsIfThatIsChosenAndElseNamesTheChoice) {
  Choose(script::latin, layout::code_page);
  const auto choose_all = [this] {
    for (QAction* row : Widget("strip")->findChildren<QAction*>())
      if (row->text() == QStringLiteral("Slova svih tastatura")) row->trigger();
  };
  Solve({.rows = puzzle_rows});
  const std::string refused =
      "Slovo nije sa tastature ovog pisma; uzima ga „Slova svih tastatura“ u meniju (F10).";
  Keys("ж");
  EXPECT_EQ(std::pair(glavni.rec_tekst, NewsText()), std::pair(std::string("___"), refused));
  Keys("Delete Box3 a");
  EXPECT_EQ(NewsText(), "U ovoj kućici nema slova reči.");
  choose_all();
  Restart();
  Choose(script::latin, layout::code_page);
  Solve({.rows = puzzle_rows});
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("жЊǆ"));
  QApplication::sendEvent(QApplication::focusWidget(), &composed);
  EXPECT_EQ(glavni.rec_tekst, "@WX") << "each letter goes into its box";
  Keys("[");
  EXPECT_TRUE(NewsText().starts_with("To je slovo samo uz kodni raspored YU ASCII"));
  Choose(script::latin, layout::yu_ascii);
  Keys("Home");
  QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_A, "A", Qt::NoModifier);
  EXPECT_EQ(glavni.rec_tekst.front(), 'A') << "Caps Lock";
  Keys("A");
  EXPECT_TRUE(NewsText().starts_with("Uz YU ASCII se slova kucaju bez tastera Shift"));
}

}  // namespace kalvon::testing
