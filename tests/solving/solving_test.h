// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "crossword/cell.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

/// Cells of the grid, as column and row.
using Cells = std::set<std::pair<int, int>>;

/// The selection as its direction (1 across, 2 down) and its first and last cell.
struct Word {
  int direction = 0;
  int x1 = 0, y1 = 0;
  int x2 = 0, y2 = 0;
  bool operator==(const Word&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Word& word) {
  return out << (word.direction == 1 ? "across " : "down ") << word.x1 << ',' << word.y1 << " to "
             << word.x2 << ',' << word.y2;
}

/// A program in Latin script on a YU ASCII keyboard, with the means to load a puzzle and look at
/// it.
class SolvingTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    frm_opcije->opt_opcije(1).Value(true);
    frm_opcije->opt_opcije1(0).Value(true);
  }

  /// Loads a crossword, which selects the word of its first across clue, and goes to its first box.
  void Solve(const std::string& qvm) {
    WriteFile("p.qvm", qvm);
    Load("p.qvm");
    QTest::mouseClick(Widget("txt_rec(0)"), Qt::LeftButton);
  }
  void Solve(const CrosswordText& text) { Solve(Qvm(text)); }

  /// Presses the keys of a script such as "m Left Enter": letters as they are, other keys by name.
  void Keys(const std::string& script) {
    static const std::map<std::string, Qt::Key> names = {
        {"Left", Qt::Key_Left},     {"Right", Qt::Key_Right},         {"Up", Qt::Key_Up},
        {"Down", Qt::Key_Down},     {"Home", Qt::Key_Home},           {"End", Qt::Key_End},
        {"Delete", Qt::Key_Delete}, {"Backspace", Qt::Key_Backspace}, {"Space", Qt::Key_Space},
        {"Enter", Qt::Key_Return}};
    std::istringstream words(script);
    for (std::string word; words >> word;) {
      const auto name = names.find(word);
      if (name == names.end()) {
        Type(word);
      } else {
        PressKey(name->second);
      }
    }
  }

  static Word Selection() {
    return {glavni.smer, glavni.rec_x1, glavni.rec_y1, glavni.rec_x2, glavni.rec_y2};
  }

  static const std::string& Cell(int x, int y) { return glavni.ukr_polja(x, y, 1); }

  /// The user's letters of the grid row by row; a blank for none.
  static std::vector<std::string> Letters() {
    std::vector<std::string> rows(static_cast<std::size_t>(glavni.ukr_visina));
    for (int y = 1; y <= glavni.ukr_visina; ++y) {
      for (int x = 1; x <= glavni.ukr_sirina; ++x) {
        const std::string& cell = Cell(x, y);
        const bool filled = IsLetterCell(cell) && cell.at(1) != '$';
        rows[static_cast<std::size_t>(y - 1)] += filled ? cell[1] : ' ';
      }
    }
    return rows;
  }

  /// The cells of the view that look marked.
  [[nodiscard]] Cells MarkedCells() const {
    Cells cells;
    for (int i = 0; i < 15; ++i) {
      for (int j = 0; j < 15; ++j) {
        if (PixelOf("pic_ukr", 28 * i + 26, 28 * j + 26) == 0xFFFF7F) {
          cells.emplace(glavni.pogled_x + i, glavni.pogled_y + j);
        }
      }
    }
    return cells;
  }

  /// The cells of a word that the view shows.
  static Cells VisibleCells(const Word& word) {
    Cells cells;
    for (int x = word.x1; x <= word.x2; ++x) {
      for (int y = word.y1; y <= word.y2; ++y) {
        const int column = x - glavni.pogled_x;
        const int row = y - glavni.pogled_y;
        if (column >= 0 && column < 15 && row >= 0 && row < 15) cells.emplace(x, y);
      }
    }
    return cells;
  }

  /// What the letter boxes show, each closed by "|", without the empty ones at the end. Checks that
  /// the position numbers stand above these boxes only.
  static std::string Boxes() {
    std::string shown;
    for (int i = 0; i < 15; ++i) {
      const std::string text = frm_glavni->txt_rec(i).Text();
      EXPECT_EQ(frm_glavni->lbl_rec(i).Visible(), !text.empty()) << i;
      if (!text.empty()) shown += text + "|";
    }
    return shown;
  }
};

/// Rows of a puzzle with digraph letters. Column 4 has no word down, and the word down before the O
/// of OKO is WI, two blocked cells away.
inline const std::vector<std::string> puzzle_rows = {"QXW#K",  //
                                                     "A#IRM",  //
                                                     "T###A",  //
                                                     "OKO#S"};
inline constexpr Word word_qxw = {1, 1, 1, 3, 1};

}  // namespace kalvon::testing
