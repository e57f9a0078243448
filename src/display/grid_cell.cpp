// SPDX-License-Identifier: MIT
#include "display/grid_cell.h"

#include <string>
#include <string_view>

#include "crossword/cell.h"
#include "crossword/fields.h"
#include "display/colours.h"
#include "display/fonts.h"
#include "display/grid_geometry.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

using files::pass_over;

namespace {

constexpr toolkit::Colour black = 0x000000;
constexpr toolkit::Colour white = 0xFFFFFF;

/// Top left pixel of a cell.
struct Origin {
  int x;
  int y;
};

void DrawGrayBlock(Origin cell) {
  frm_glavni->pic_ukr.FilledBox(cell.x + 1, cell.y, cell.x + 26, cell.y + 26, ShownColours().block);
}

void DrawBlackSquare(Origin cell) {
  frm_glavni->pic_ukr.FilledBox(cell.x + 4, cell.y + 4, cell.x + 22, cell.y + 22, black);
}

/// An arc through the top of the circle; the gap leaves the grid line below it alone.
void DrawRing(Origin cell) {
  constexpr float pi = 3.14F;
  frm_glavni->pic_ukr.Circle(cell.x + 13, cell.y + 18, 10, 1.7F * pi, 1.4F * pi);
}

// A broken border is the black grid line with three white gaps of four pixels in it.
constexpr int gap_starts[] = {4, 12, 20};
constexpr int gap_length = 4;

void BreakVerticalLine(int x, Origin cell) {
  for (const int start : gap_starts)
    frm_glavni->pic_ukr.Line(x, cell.y + start, x, cell.y + start + gap_length - 1, white);
}

void BreakHorizontalLine(int y, Origin cell) {
  for (const int start : gap_starts)
    frm_glavni->pic_ukr.Line(cell.x + start, y, cell.x + start + gap_length - 1, y, white);
}

/// The digit that stands `from_end` characters from the end of the text, 1 being the last one; 0
/// for any other character and where there is none.
int DigitFromEnd(std::string_view text, std::size_t from_end) {
  if (text.size() < from_end) return 0;
  const char character = text[text.size() - from_end];
  return character >= '0' && character <= '9' ? character - '0' : 0;
}

/// Draws the marks that stand behind the first "$" of a letter cell: the ring third from its start,
/// the broken borders in the last two characters. 1 breaks the far border, right or bottom, and a
/// higher digit the near one.
void DrawMarks(Origin cell, std::string_view marks) {
  if (marks.size() > 2 && marks[2] == '1') DrawRing(cell);
  const int side = DigitFromEnd(marks, 2);
  const int bottom = DigitFromEnd(marks, 1);
  if (side > 0) BreakVerticalLine(side == 1 ? cell.x + cell_pitch - 1 : cell.x - 1, cell);
  if (bottom > 0) BreakHorizontalLine(bottom == 1 ? cell.y + cell_pitch - 1 : cell.y - 1, cell);
}

void DrawLetter(Origin cell, char letter) {
  auto& picture = frm_glavni->pic_ukr;
  SetFont(frm_glavni->lbl_sirina, glavni.font_ime, 14, true);
  picture.FontName(glavni.font_ime);
  const bool smaller = glavni.jezik == 1 || picture.FontName() == "Arial";
  SetFont(picture, glavni.font_ime, smaller ? 12 : 14, true);

  if (glavni.jezik == 0) postavi_charset();
  const std::string znak = ShownLetter(letter, ChosenWriting());
  // Letters are centred by their width at 14 points also where they are printed smaller.
  picture.CurrentX(cell.x + HalfDown(cell_pitch - MeasuredWidth(znak)));
  picture.CurrentY(cell.y + 8);
  picture.Print(znak);
}

void DrawContents(Origin cell, const std::string& text) {
  if (text == black_square) DrawBlackSquare(cell);
  if (text == gray_block) DrawGrayBlock(cell);
  if (!IsLetterCell(text)) return;
  DrawMarks(cell, Behind(text, '$'));
  if (ShowsUserLetter(text)) DrawLetter(cell, text[1]);
}

void DrawNumber(Origin cell, int number) {
  if (number <= 0) return;
  auto& picture = frm_glavni->pic_ukr;
  SetFont(picture, glavni.font_ime, 8, false);
  picture.CurrentX(cell.x + 1);
  picture.CurrentY(cell.y);
  picture.Print(std::to_string(number));
}

}  // namespace

void DrawCell(int i, int j) {
  const Origin cell{(i - 1) * cell_pitch, (j - 1) * cell_pitch};
  const int x = glavni.pogled_x + i - 1;
  const int y = glavni.pogled_y + j - 1;
  if (x > glavni.ukr_sirina || y > glavni.ukr_visina) {
    DrawGrayBlock(cell);
    return;
  }
  pass_over([&] { DrawContents(cell, glavni.ukr_polja(x, y, 1)); });
  pass_over([&] { DrawNumber(cell, glavni.rec_broj(x, y)); });
}

}  // namespace kalvon
