// SPDX-License-Identifier: MIT
#include "printing/layout.h"

#include <algorithm>
#include <cmath>

#include "files/run_time_error.h"
#include "printing/clue_texts.h"
#include "printing/columns.h"
#include "printing/face.h"
#include "printing/grid_drawing.h"
#include "printing/one_page.h"

namespace kalvon::printing {
namespace {

/// A grid with cells of this size takes no more columns.
constexpr double good_cell = 7 * points_per_millimetre;

// Where the clues need several pages.
constexpr double letters_of_clues = 9.5;
constexpr int columns_of_clues = 3;

constexpr double smallest_solution_cell = 4.5;
constexpr double largest_solution_cell = 9;
constexpr double solution_heading = 9;

constexpr double footer_size = 8;
constexpr double footer_height = 16;
constexpr double between_parts = 10;
constexpr double least_room = 200;

/// Lays out one crossword. What is still free on the page at hand is its body.
class Layouter {
 public:
  Layouter(const Sheet& sheet, const Paper& paper)
      : sheet_(sheet),
        grid_(sheet.crossword.ukr_sirina, sheet.crossword.ukr_visina),
        room_(paper.margin, paper.margin, paper.width - 2 * paper.margin,
              paper.height - 2 * paper.margin),
        entries_(Entries(sheet)) {
    const bool is_enough = room_.width() >= least_room && room_.height() >= least_room;
    if (!is_enough || grid_.isEmpty()) throw files::RuntimeError(files::error::invalid_call);
    layout_.paper = paper;
    layout_.title = Written(sheet.title, sheet.writing);
    layout_.author = Written(sheet.author, sheet.writing);
    SizeSolution();
  }

  Layout LayOut() {
    AddPage();
    DrawHead();
    const auto solution = [this](const Columns& columns) { return SolutionIn(columns); };
    if (const auto page = BestPage(entries_, grid_, body_, solution)) {
      SetOnePage(*page);
    } else {
      room_.setBottom(room_.bottom() - footer_height);
      body_.setBottom(room_.bottom());
      SetManyPages();
      DrawFooters();
    }
    return std::move(layout_);
  }

 private:
  [[nodiscard]] Drawing& Upright() { return layout_.pages.back().upright; }
  [[nodiscard]] GridPart WholeGrid() const { return {1, 1, grid_.width(), grid_.height()}; }
  [[nodiscard]] Letters LettersInGrid() const {
    return sheet_.contents == Contents::users_letters ? Letters::users : Letters::none;
  }

  void AddPage() {
    layout_.pages.emplace_back();
    body_ = room_;
  }

  // The head: title, author and description above all else.

  void DrawHead() {
    DrawHeadText(layout_.title, 16, true, 2);
    DrawHeadText(layout_.author, 10, false, 1);
    DrawHeadText(Written(sheet_.description, sheet_.writing), 9, false, 3);
    if (body_.top() > room_.top()) body_.setTop(body_.top() + 8);
  }

  /// Takes lines from the body; a longer text ends in an ellipsis.
  void DrawHeadText(const QString& text, double size, bool bold, std::size_t most_lines) {
    const Paragraph paragraph(text, bold);
    if (paragraph.IsEmpty()) return;
    const QString ellipsis = QStringLiteral("…");
    const double width = body_.width() / size - WidthOf(ellipsis, bold);
    const std::vector<Line> lines = paragraph.Lines(width);
    for (std::size_t i = 0; i < std::min(lines.size(), most_lines); ++i) {
      const bool is_cut = i + 1 == most_lines && lines.size() > most_lines;
      const QString line = paragraph.TextOf(lines[i]) + (is_cut ? ellipsis : QString());
      AddText(Upright(), body_.topLeft(), line, size, bold);
      body_.setTop(body_.top() + size * line_pitch);
    }
  }

  static void AddText(Drawing& drawing, QPointF at, const QString& text, double size, bool bold) {
    const QSizeF extent(WidthOf(text, bold) * size, FaceHeight() * size);
    drawing.texts.push_back({{at, extent}, text, size, bold});
  }

  // The solution, which stands in the lower right corner, upside down.

  void SizeSolution() {
    if (sheet_.contents != Contents::solution) return;
    const QSizeF place(room_.width(), room_.height() - 2 * footer_height - solution_heading);
    const double cell = std::min(LargestCell(grid_, place), largest_solution_cell);
    if (cell >= smallest_solution_cell) solution_cell_ = cell;
  }

  [[nodiscard]] Taken SolutionIn(const Columns& columns) const {
    if (solution_cell_ == 0) return {};
    return {columns.Spanned(solution_cell_ * grid_.width()),
            solution_heading * line_pitch + solution_cell_ * grid_.height() + below_grid};
  }

  void DrawSolution() {
    const QPointF at(layout_.paper.width - room_.right(), layout_.paper.height - room_.bottom());
    Drawing& turned = layout_.pages.back().turned;
    AddText(turned, at, SolutionHeading(), solution_heading, true);
    DrawGrid(sheet_, WholeGrid(), {solution_cell_, Letters::solution, false},
             at + QPointF(0, solution_heading * line_pitch), turned);
  }

  [[nodiscard]] QString SolutionHeading() const {
    return Written(sheet_.writing.english ? "Solution" : "Rešenje", sheet_.writing);
  }

  // One page.

  void SetOnePage(const OnePage& page) {
    const Taken grid = DrawGridIn(page.columns, page.spanned, page.cell);
    const ClueFlow flow(entries_, page.letters, page.columns.Width());
    const auto frames = Frames(page.columns, grid, SolutionIn(page.columns));
    flow.Set({}, Balanced(flow, {}, frames), &Upright());
    if (solution_cell_ > 0) DrawSolution();
  }

  /// Draws the grid in the middle of the columns on the right that it spans.
  Taken DrawGridIn(const Columns& columns, int spanned, double cell) {
    const GridLook look = {cell, LettersInGrid()};
    const QSizeF size = SizeOf(WholeGrid(), look);
    const bool all = spanned == columns.count;
    const double free = columns.Width(spanned) - size.width();
    const double left = columns.body.right() - size.width() - (all ? free / 2 : 0);
    DrawGrid(sheet_, WholeGrid(), look, {left, columns.body.top()}, Upright());
    return {spanned, size.height() + below_grid};
  }

  // More pages.

  void SetManyPages() {
    Taken grid;
    if (LargestCell(grid_, body_.size()) >= smallest_cell) {
      const Columns columns = {body_, columns_of_clues};
      int spanned = 1;
      const auto cell = [&] {
        return LargestCell(grid_, {columns.Width(spanned), body_.height()});
      };
      while (spanned < columns.count && cell() < good_cell) ++spanned;
      grid = DrawGridIn(columns, spanned, cell());
    } else {
      SpreadGrid({0, LettersInGrid(), true, true}, {smallest_cell, largest_cell}, &Page::upright);
      if (!entries_.empty()) AddPage();
    }
    const bool is_solution_due = SetClues(grid);
    if (sheet_.contents != Contents::solution) return;
    if (solution_cell_ == 0) {
      AddPage();
      SpreadGrid({0, Letters::solution, false, true},
                 {smallest_solution_cell, largest_solution_cell}, &Page::turned);
    } else if (is_solution_due) {
      AddPage();
      DrawSolution();
    }
  }

  /// Sets the clues from the page at hand on, with the solution on the last page if there is room.
  /// Returns whether it still has no place.
  bool SetClues(Taken grid) {
    const ClueFlow flow(entries_, letters_of_clues, Columns{body_, columns_of_clues}.Width());
    for (FlowPlace place;; grid = {}) {
      const Columns columns = {body_, columns_of_clues};
      const Taken solution = SolutionIn(columns);
      const bool has_solution =
          solution_cell_ > 0 && !entries_.empty() && Fits(flow, place, columns, grid, solution);
      const auto frames = Frames(columns, grid, has_solution ? solution : Taken{});
      if (has_solution || Fits(flow, place, columns, grid, {})) {
        flow.Set(place, Balanced(flow, place, frames), &Upright());
        if (has_solution) DrawSolution();
        return !has_solution;
      }
      place = flow.Set(place, frames, &Upright());
      AddPage();
    }
  }

  struct CellLimits {
    double smallest;
    double largest;
  };

  /// Draws the grid in parts that are alike, one beside the other as long as there is room, on as
  /// many pages as it takes.
  void SpreadGrid(GridLook look, CellLimits limits, Drawing Page::*drawing) {
    const auto length = [&](int cells, double room) {
      const int most = static_cast<int>((room - ruler) / limits.smallest);
      const int parts = (cells + most - 1) / most;
      return (cells + parts - 1) / parts;
    };
    const QSize part(length(grid_.width(), body_.width()), length(grid_.height(), body_.height()));
    look.cell = std::min(LargestCell(part, body_.size() - QSizeF(ruler, ruler)), limits.largest);

    QPointF at = body_.topLeft();
    double shelf = at.y();  ///< Where the parts of the row at hand end.
    for (int y = 1; y <= grid_.height(); y += part.height()) {
      for (int x = 1; x <= grid_.width(); x += part.width()) {
        const GridPart next = {x, y, std::min(part.width(), grid_.width() - x + 1),
                               std::min(part.height(), grid_.height() - y + 1)};
        const QSizeF size = SizeOf(next, look);
        constexpr double rounding = 0.001;
        if (at.x() + size.width() > body_.right() + rounding)
          at = {body_.left(), shelf + between_parts};
        if (at.y() + size.height() > body_.bottom() + rounding) {
          AddPage();
          at = body_.topLeft();
        }
        DrawGrid(sheet_, next, look, at, layout_.pages.back().*drawing);
        shelf = std::max(at.x() > body_.left() ? shelf : 0, at.y() + size.height());
        at.rx() += size.width() + between_parts;
      }
    }
  }

  /// The number of each page.
  void DrawFooters() {
    for (std::size_t i = 0; i < layout_.pages.size(); ++i) {
      const QString text = QStringLiteral("%1 / %2").arg(i + 1).arg(layout_.pages.size());
      const double left = room_.right() - WidthOf(text, false) * footer_size;
      const double top = room_.bottom() + footer_height - FaceHeight() * footer_size;
      AddText(layout_.pages[i].upright, {left, top}, text, footer_size, false);
    }
  }

  const Sheet& sheet_;
  QSize grid_;   ///< Columns and rows.
  QRectF room_;  ///< Of a page: within the margins, and above the footer if there is one.
  QRectF body_;
  std::vector<Entry> entries_;
  double solution_cell_ = 0;  ///< 0 if the solution is not asked for or needs pages of its own.
  Layout layout_;
};

}  // namespace

Layout LayOut(const Sheet& sheet, const Paper& paper) { return Layouter(sheet, paper).LayOut(); }

}  // namespace kalvon::printing
