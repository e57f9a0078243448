// SPDX-License-Identifier: MIT
#include "display/clue_printing.h"

#include <algorithm>
#include <string_view>

#include "crossword/fields.h"
#include "crossword/media_kinds.h"
#include "display/clue_page.h"
#include "display/fonts.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

constexpr int text_left = 15;
constexpr int icon_left = 2;
/// Pixels of a list's width that its text leaves free.
constexpr int text_margin = 20;

/// The icon of a medium: its index in `pic_media`.
int IconOf(Medium medium) {
  switch (medium) {
    case Medium::picture:
      return media_picture::picture_icon;
    case Medium::text:
      return media_picture::text_icon;
    case Medium::video:
      return media_picture::video_icon;
    default:
      return media_picture::sound_icon;
  }
}

/// Whether the name ends in small or in capital letters of the ending; only these have an icon.
bool HasEnding(std::string_view name, std::string_view ending) {
  const std::string_view end = LastCharacters(name, ending.size());
  const auto capital = [](char small, char letter) { return small - 'a' + 'A' == letter; };
  return name.size() > ending.size() && name[name.size() - ending.size() - 1] == '.' &&
         (end == ending || std::ranges::equal(ending, end, capital));
}

/// Whether a text is no wider than a row of a list.
bool Fits(std::string_view text, int width) { return MeasuredWidth(std::string(text)) <= width; }

/// Length of the row that begins a text: the longest beginning that fits and ends before a blank,
/// or one character if none does.
std::size_t RowLength(std::string_view text, int width) {
  text = text.substr(0, row_characters_at_most);
  std::size_t length = 1;
  // A longer beginning is never narrower, so the first one that is too wide ends the search.
  for (std::size_t end = 0; end < text.size();) {
    end = std::min(text.find(' ', end + 1), text.size());
    if (!Fits(text.substr(0, end), width)) break;
    length = end;
  }
  return length;
}

void PrintIcon(toolkit::PictureBox& list, const std::string& media, int y) {
  for (const MediaKind& kind : media_kinds)
    if (HasEnding(media, kind.ending))
      list.PaintPicture(frm_glavni->pic_media(IconOf(kind.medium)).Picture(), icon_left, y);
}

}  // namespace

int PrintClue(int strana, const std::string& text, const std::string& media) {
  auto& list = frm_glavni->pic_tekst(strana - 1);
  const int width = list.Width() - text_margin;
  int rows = 0;
  for (std::string_view rest = text; !rest.empty() && rows < rows_at_most; ++rows) {
    LastPrintedRow(strana) = LastPrintedRow(strana) + 1;
    const int y = LastPrintedRow(strana) * list_row_height;
    const std::size_t length = RowLength(rest, width);
    list.CurrentX(text_left);
    list.CurrentY(y);
    list.Print(std::string(rest.substr(0, length)));
    if (rows == 0) PrintIcon(list, media, y);
    rest = Trimmed(rest.substr(length));
  }
  return rows;
}

}  // namespace kalvon
