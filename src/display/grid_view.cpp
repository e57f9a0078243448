// SPDX-License-Identifier: MIT
#include "display/grid_view.h"

#include <algorithm>
#include <string>

#include "display/colours.h"
#include "display/fonts.h"
#include "display/grid_cell.h"
#include "display/grid_geometry.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

using files::pass_over;

namespace {

constexpr toolkit::Colour black = 0x000000;

/// Fills what a grid smaller than the view leaves of it.
void DrawRemainder(int columns, int rows) {
  auto& picture = frm_glavni->pic_ukr;
  const toolkit::Colour block = ShownColours().block;
  if (columns < view_cells) picture.FilledBox(columns * cell_pitch, 1, view_size, view_size, block);
  if (rows < view_cells) picture.FilledBox(1, rows * cell_pitch, view_size, view_size, block);
}

void DrawGridLines() {
  auto& picture = frm_glavni->pic_ukr;
  for (int k = 1; k <= view_cells; ++k) {
    const int line = k * cell_pitch - 1;
    picture.Line(line, 0, line, view_size, black);
    picture.Line(0, line, view_size, line, black);
  }
}

std::string LastDigit(int number) {
  const std::string digits = std::to_string(number);
  return digits.substr(digits.size() - 1);
}

}  // namespace

void crtaj_ukrstenicu() {
  const int columns = std::min<int>(glavni.ukr_sirina, view_cells);
  const int rows = std::min<int>(glavni.ukr_visina, view_cells);
  pass_over([] { frm_glavni->pic_ukr.Picture({}); });
  pass_over([&] { DrawRemainder(columns, rows); });
  pass_over([] { DrawGridLines(); });
  for (int i = 1; i <= columns; ++i)
    for (int j = 1; j <= rows; ++j) pass_over([&] { DrawCell(i, j); });
  pass_over([] { crtaj_brojeve(); });
}

void crtaj_brojeve() {
  auto& row_ruler = frm_glavni->pic_brojevi(0);
  auto& column_ruler = frm_glavni->pic_brojevi(1);
  for (auto* ruler : {&row_ruler, &column_ruler}) {
    ruler->Picture({});
    SetFont(*ruler, "MS Sans Serif", 8, true);
  }
  SetFont(frm_glavni->lbl_sirina, "MS Sans Serif", 8, true);

  const int row_height = frm_glavni->pic_sirina.Height();
  for (int k = 1; k <= view_cells; ++k) {
    const int cell = (k - 1) * cell_pitch;
    const int row = glavni.pogled_y + k - 1;
    if (row <= glavni.ukr_visina) {
      const std::string digit = LastDigit(row);
      row_ruler.CurrentX(row_ruler.Width() - MeasuredWidth(digit) - 2);
      row_ruler.CurrentY(cell + HalfDown(cell_pitch - row_height));
      row_ruler.Print(digit);
    }
    const int column = glavni.pogled_x + k - 1;
    if (column <= glavni.ukr_sirina) {
      const std::string digit = LastDigit(column);
      column_ruler.CurrentX(cell + HalfDown(cell_pitch - MeasuredWidth(digit)));
      column_ruler.CurrentY(2);
      column_ruler.Print(digit);
    }
  }
}

}  // namespace kalvon
