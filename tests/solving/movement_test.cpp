// SPDX-License-Identifier: MIT
#include "display/clue_page.h"
#include "support/puzzle_test.h"

namespace kalvon::testing {

using Movement = PuzzleTest;

struct Moves {
  const char* keys;
  Word word;
  int position;
};

const Moves moves[] = {
    {"Ctrl+Right", {1, 1, 1, 3, 1}, 1},
    {"Ctrl+Left Ctrl+Up", {1, 1, 1, 3, 1}, 0},
    {"Ctrl+Right Ctrl+Right Ctrl+Right", {2, 5, 1, 5, 4}, 0},
    {"Ctrl+Down Ctrl+Down Ctrl+Down", {2, 1, 1, 1, 4}, 3},
    {"End Ctrl+Down", {1, 3, 2, 5, 2}, 0},
    {"End Ctrl+Down Ctrl+Down Ctrl+Left", {1, 1, 4, 3, 4}, 1},
    {"Ctrl+Return", {2, 1, 1, 1, 4}, 0},
    {"Ctrl+Right Ctrl+Return", {1, 1, 1, 3, 1}, 1},
    {"End Ctrl+Return Ctrl+Down Ctrl+Return Ctrl+Enter", {2, 3, 1, 3, 2}, 1},
    {"Cell Ctrl+Left", {2, 1, 1, 1, 4}, 0},
    {"Cell Ctrl+Return", {1, 1, 1, 3, 1}, 1},
    {"Alt+Down", {1, 3, 2, 5, 2}, 0},
    {"Alt+Down Alt+Down Alt+Down", {1, 1, 4, 3, 4}, 0},
    {"Alt+Down Alt+Down Alt+Up", {1, 3, 2, 5, 2}, 0},
    {"Alt+Up", {1, 1, 1, 3, 1}, 0},
    {"Alt+Down Alt+Left", {2, 5, 1, 5, 4}, 0},
    {"Alt+Right", {2, 1, 1, 1, 4}, 0},
    {"Alt+Left Alt+Down Alt+Down Alt+Right", {1, 3, 2, 5, 2}, 0},
};

TEST_F(Movement, GoesToCellsAndCluesByKeys) {
  for (const Moves& way : moves) {
    SCOPED_TRACE(way.keys);
    Solve({.rows = puzzle_rows});
    std::string keys = way.keys;
    if (keys.starts_with("Cell")) ClickCell(2, 1);  // Selects nothing.
    Keys(keys.starts_with("Cell") ? keys.substr(5) : keys);
    EXPECT_EQ(Selection(), way.word);
    EXPECT_EQ(glavni.rec_poz, way.position);
    EXPECT_EQ(FocusedControl(), "txt_rec(" + std::to_string(way.position) + ")");
    ExpectScreenOfState();
  }
  Solve({.rows = puzzle_rows});
  Keys("q Ctrl+Right x");
  EXPECT_EQ(glavni.rec_tekst, "Q_X") << "what was typed stays in the boxes";
}

TEST_F(Movement, PagesOfAListLeaveNoClueOut) {
  Load("velika.qvm");
  auto& bar = frm_glavni->scr_tekst(0);
  const auto whole = [] {
    const auto clues = CluesOnPage(1);
    return static_cast<int>(
        std::ranges::count_if(clues, [](const PageClue& clue) { return clue.last_row <= 14; }));
  };
  const auto turn = [&](const char* key) {
    const int before = bar.Value();
    Keys(key);
    ExpectScreenOfState();
    return bar.Value() != before;
  };
  const int shown = whole();
  EXPECT_TRUE(turn("PgDown") && bar.Value() == 1 + shown);
  for (int end = bar.Value() + whole(); turn("PgDown"); end = bar.Value() + whole())
    EXPECT_EQ(bar.Value(), end);
  EXPECT_GT(bar.Value() + whole(), bar.Max());
  for (int head = bar.Value(); turn("PgUp"); head = bar.Value())
    EXPECT_GE(bar.Value() + whole(), head);
  EXPECT_EQ(bar.Value(), 1);
  frm_glavni->scr_ver.SetFocus();
  EXPECT_FALSE(turn("PgDown"));
}

}  // namespace kalvon::testing
