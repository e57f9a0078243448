// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/clue_page.h"
#include "display/grid_geometry.h"
#include "display/selected_word.h"
#include "shell/toolkit/drawing/surface_p.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

inline constexpr unsigned black = 0x000000, white = 0xFFFFFF, gray = 0xC0C0C0, marked = 0xFFFF7F;

/// Numbers that are the same for the same seed.
class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  /// A number from 0 to below n.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  char OneOf(std::string_view characters) { return characters[engine_() % characters.size()]; }

 private:
  std::mt19937 engine_;
};

/// Looks at what a program has drawn.
class DisplayTest : public ProgramTest {
 protected:
  using Cells = std::set<std::pair<int, int>>;
  using Rows = std::pair<int, int>;

  void LoadText(const CrosswordText& text) {
    WriteFile("p.qvm", Qvm(text));
    Load("p.qvm");
  }

  [[nodiscard]] QImage Shown(const std::string& control) const {
    return Widget<toolkit::Surface>(control)->Shown().copy();
  }

  /// A cell of the view, from 1, without its grid lines.
  [[nodiscard]] QImage CellImage(int i, int j) const {
    return Shown("pic_ukr").copy((i - 1) * cell_pitch, (j - 1) * cell_pitch, 27, 27);
  }

  static int Ink(const QImage& image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
    return dark;
  }

  /// Grid cells that carry the mark, by a corner pixel that no drawing in a cell reaches.
  [[nodiscard]] Cells MarkedCells() const {
    Cells cells;
    const QImage grid = Shown("pic_ukr");
    for (int i = 0; i < view_cells; ++i) {
      for (int j = 0; j < view_cells; ++j) {
        const unsigned corner = grid.pixel(i * cell_pitch + 26, j * cell_pitch + 26) & 0xFFFFFFU;
        if (corner != white && corner != gray)
          cells.insert({glavni.pogled_x + i, glavni.pogled_y + j});
      }
    }
    return cells;
  }

  /// Cells of the selected word that the view shows.
  [[nodiscard]] static Cells WordInView() {
    Cells cells;
    for (const GridCell& cell : SelectedCells())
      if (InView(cell.x, glavni.pogled_x) && InView(cell.y, glavni.pogled_y))
        cells.insert({cell.x, cell.y});
    return cells;
  }

  /// The bars on a list (1 across, 2 down): first and last pixel row of each.
  [[nodiscard]] std::vector<Rows> Bars(int strana) const {
    const QImage list = Shown(strana == 1 ? "pic_tekst(0)" : "pic_tekst(1)");
    std::vector<Rows> bars;
    for (int y = 0; y < list.height(); ++y) {
      if ((list.pixel(0, y) & 0xFFFFFFU) != marked) continue;
      if (bars.empty() || bars.back().second != y - 1) bars.emplace_back(y, y);
      bars.back().second = y;
    }
    return bars;
  }

  /// The bar that the selected clue should have on a list.
  [[nodiscard]] static std::vector<Rows> SelectedBar(int strana) {
    if (glavni.sel_broj == 0 || glavni.smer != strana) return {};
    for (const PageClue& clue : CluesOnPage(strana)) {
      const Rows rows{std::max(0, (clue.first_row - 1) * 15 - 2),
                      std::min(clue.last_row * 15 - 2, 209)};
      if (clue.number == glavni.sel_broj && rows.first < 210) return {rows};
    }
    return {};
  }

  /// The word of the state and its clue are marked, each once, and nothing else is.
  void ExpectMarksOfState() const {
    EXPECT_EQ(MarkedCells(), WordInView());
    for (const int strana : {1, 2}) EXPECT_EQ(Bars(strana), SelectedBar(strana)) << strana;
    if (!WordInView().empty()) {
      EXPECT_EQ(glavni.sel_broj, glavni.rec_broj(glavni.rec_x1, glavni.rec_y1));
    }
  }

  /// Numbers of the clues on the page of a list.
  [[nodiscard]] static std::vector<int> NumbersOnPage(int strana) {
    std::vector<int> numbers;
    for (const PageClue& clue : CluesOnPage(strana)) numbers.push_back(clue.number);
    return numbers;
  }
};

}  // namespace kalvon::testing
