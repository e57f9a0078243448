// SPDX-License-Identifier: MIT
#include "printing/one_page.h"

#include <algorithm>
#include <numeric>

#include "printing/face.h"

namespace kalvon::printing {
namespace {

constexpr double smallest_letters = 8;
constexpr double largest_letters = 11;
constexpr double letters_step = 0.5;
constexpr int letters_steps = 6;  // From the largest to the smallest.
constexpr double cell_step = 0.1;

double Worth(const OnePage& page) { return page.letters * page.cell; }

/// Finds the largest cells with which `fits`; false if there are none that make the page worth more
/// than `least`.
template <typename Fits>
bool EnlargeCells(OnePage& page, double largest, double least, Fits fits) {
  page.cell = largest;
  if (page.cell < smallest_cell || Worth(page) <= least) return false;
  if (fits()) return true;
  page.cell = smallest_cell;
  if (!fits()) return false;
  double enough = smallest_cell;
  double too_large = largest;
  while (too_large - enough > cell_step) {
    page.cell = std::midpoint(enough, too_large);
    (fits() ? enough : too_large) = page.cell;
  }
  page.cell = enough;
  return Worth(page) > least;
}

/// Whether the clues take more than a page, however they are set. Tells so of a very long text
/// before it is broken into lines.
bool AreTooLong(std::span<const Entry> entries, const QRectF& body) {
  double width = 0;
  for (const Entry& entry : entries) width += entry.text.Width();
  return width * smallest_letters * smallest_letters * line_pitch > body.width() * body.height();
}

}  // namespace

double LargestCell(QSize grid, QSizeF place) {
  return std::min({place.width() / grid.width(), place.height() / grid.height(), largest_cell});
}

std::optional<OnePage> BestPage(std::span<const Entry> entries, QSize grid, const QRectF& body,
                                const std::function<Taken(const Columns&)>& solution) {
  std::optional<OnePage> best;
  if (AreTooLong(entries, body)) return best;
  for (const int count : {3, 2}) {
    const Columns columns = {body, count};
    const Taken bottom = solution(columns);
    for (int step = 0; step <= letters_steps; ++step) {
      const double letters = largest_letters - step * letters_step;
      const ClueFlow flow(entries, letters, columns.Width());
      for (int spanned = 1; spanned <= count; ++spanned) {
        OnePage page = {columns, spanned, letters};
        const auto fits = [&] {
          const Taken top = {spanned, page.cell * grid.height() + below_grid};
          return Fits(flow, {}, columns, top, bottom);
        };
        const double largest = LargestCell(grid, {columns.Width(spanned), body.height()});
        if (EnlargeCells(page, largest, best ? Worth(*best) : 0, fits)) best = page;
      }
    }
  }
  return best;
}

}  // namespace kalvon::printing
