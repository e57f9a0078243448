// SPDX-License-Identifier: MIT
#include "shell/spoken_pictures.h"

#include <algorithm>
#include <string>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/media_kinds.h"
#include "crossword/media_table.h"
#include "crossword/words.h"
#include "display/clue_page.h"
#include "display/grid_geometry.h"
#include "display/selected_word.h"
#include "display/word_highlight.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "files/run_time_error.h"
#include "shell/forms/frm_glavni.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/desktop/listeners.h"
#include "solving/clue_selection.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

using toolkit::Place;
using toolkit::SpokenPicture;

constexpr int enter_key = 0x0D;

constexpr StripText across = {"% vodoravno: ", "% across: "};
constexpr StripText down = {"% uspravno: ", "% down: "};

GridCell CellAt(int row, int column) { return {column + 1, row + 1}; }

/// A letter as the grid shows it.
std::string SpokenLetter(char letter) {
  return frm_glavni->pic_ukr.Decoded(ShownLetter(letter, ChosenWriting()));
}

/// The clue of the word that begins in a cell.
std::string SpokenClue(GridCell first, int direction) {
  const Clue clue = ReadClue(glavni.ukr_polja(first.x, first.y, 2), direction);
  const std::string shown = ShownClue(std::string(clue.text), ChosenWriting());
  return Shown(direction == direction::across ? across : down,
               std::to_string(glavni.rec_broj(first.x, first.y))) +
         frm_glavni->pic_tekst(direction - 1).Decoded(shown);
}

/// The clue of the word of a direction through a cell; empty if none goes there.
std::string ClueThrough(GridCell cell, int direction) {
  const auto [first, last] = FindWord(glavni, cell, direction);
  const bool is_across = direction == direction::across;
  if (first == 0 || last < (is_across ? cell.x : cell.y)) return "";
  return SpokenClue(is_across ? GridCell{first, cell.y} : GridCell{cell.x, first}, direction);
}

std::string CellName(int row, int column) {
  constexpr StripText blocked = {"blokirano", "blocked"};
  constexpr StripText empty = {"prazno", "empty"};
  const auto [x, y] = CellAt(row, column);
  const std::string& cell = glavni.ukr_polja(x, y, 1);
  if (!IsLetterCell(cell)) return Shown(blocked);
  return ShowsUserLetter(cell) ? SpokenLetter(cell[1]) : Shown(empty);
}

std::string CellDescription(int row, int column) {
  const GridCell cell = CellAt(row, column);
  if (!IsLetterCell(glavni.ukr_polja(cell.x, cell.y, 1))) return "";
  const std::string one = ClueThrough(cell, direction::across);
  const std::string other = ClueThrough(cell, direction::down);
  return one + (one.empty() || other.empty() ? "" : "; ") + other;
}

bool CellSelected(int row, int column) {
  const auto [x, y] = CellAt(row, column);
  return x >= glavni.rec_x1 && x <= glavni.rec_x2 && y >= glavni.rec_y1 && y <= glavni.rec_y2 &&
         !SelectedCells().empty();
}

Place CellPlace(int row, int column) {
  const auto [x, y] = CellAt(row, column);
  if (!InView(x, glavni.pogled_x) || !InView(y, glavni.pogled_y)) return {};
  return {(x - glavni.pogled_x) * cell_pitch, (y - glavni.pogled_y) * cell_pitch, cell_pitch - 1,
          cell_pitch - 1};
}

void PressCell(int row, int column) {
  const auto [x, y] = CellAt(row, column);
  if (BringIntoView(x, y)) oznaci_rec(0);
  ClickCell(x, y);
}

SpokenPicture Grid() {
  return {.kind = SpokenPicture::Kind::table,
          .rows = []() -> int { return glavni.ukr_visina; },
          .columns = []() -> int { return glavni.ukr_sirina; },
          .name = CellName,
          .description = CellDescription,
          .selected = CellSelected,
          .place = CellPlace,
          .press = PressCell,
          .press_whole = [] { unos_tastera(0, enter_key); }};
}

/// A clue of the page of a list. Error 9 if there are not so many.
PageClue ClueAt(int strana, int row) {
  const auto clues = CluesOnPage(strana);
  const auto place = static_cast<std::size_t>(row);
  if (place >= clues.size()) throw files::RuntimeError(files::error::subscript_out_of_range);
  return clues[place];
}

/// What opens with a clue, by the name of its medium.
std::string SpokenMedium(const std::string& name) {
  struct MediumText {
    Medium medium = Medium::picture;
    StripText text;
  };
  constexpr MediumText texts[] = {{Medium::picture, {"slika", "picture"}},
                                  {Medium::text, {"tekst", "text"}},
                                  {Medium::sound, {"zvuk", "sound"}},
                                  {Medium::music, {"muzika", "music"}},
                                  {Medium::video, {"film", "video"}}};
  const MediaKind* const kind = KindOfMedium(name);
  if (kind == nullptr) return "";
  return Shown(std::ranges::find(texts, kind->medium, &MediumText::medium)->text);
}

/// What a list (1 across, 2 down) shows: the clues of its page.
SpokenPicture ListOf(int strana) {
  const auto clue = [strana](int row) { return ClueAt(strana, row); };
  const auto middle_of_row = [](int row) { return row * list_row_height - list_row_height / 2; };
  return {
      .kind = SpokenPicture::Kind::list,
      .rows = [strana]() -> int { return CluesInList(strana); },
      .name =
          [=](int row, int) {
            return frm_glavni->pic_tekst(strana - 1).Decoded(glavni.lista(clue(row).n, 1, strana));
          },
      .description = [=](int row,
                         int) { return SpokenMedium(glavni.lista(clue(row).n, 5, strana)); },
      .selected = [=](int row, int) { return clue(row).first_row == BarOfList(strana).first; },
      .place =
          [=](int row, int) {
            const auto [n, number, first, last] = clue(row);
            const int top = (first - 1) * list_row_height;
            const int bottom = std::min(last, list_rows) * list_row_height;
            return Place{0, top, frm_glavni->pic_tekst(strana - 1).Width(), bottom - top};
          },
      .press = [=](int row,
                   int) { klik_pitanje(strana - 1, 1, 0, middle_of_row(clue(row).first_row)); }};
}

/// The letters of the selected word so far, with a line for each empty place.
std::string LettersSoFar() {
  std::string letters;
  for (const char letter : glavni.rec_tekst)
    letters += ' ' + (letter == '_' ? std::string(1, letter) : SpokenLetter(letter));
  return letters;
}

}  // namespace

void DescribePictures() {
  frm_glavni->pic_ukr.Spoken(Grid());
  for (const int strana : {direction::across, direction::down})
    frm_glavni->pic_tekst(strana - 1).Spoken(ListOf(strana));
  toolkit::WhenSomebodyListens(TellPictures);
}

void TellPictures() {
  if (!toolkit::SomebodyListens()) return;
  const auto [first, direction] = SelectedWord();
  const std::string clue = direction == 0 ? "" : SpokenClue(first, direction);
  frm_glavni->txt_rec.ForEach([&](toolkit::TextBox& box) { box.SpokenDescription(clue); });
  frm_glavni->pic_ukr.SpokenDescription(clue.empty() ? "" : clue + " –" + LettersSoFar());
  frm_glavni->pic_ukr.TellSpoken();
  frm_glavni->pic_tekst.ForEach([](toolkit::PictureBox& list) { list.TellSpoken(); });
}

}  // namespace kalvon
