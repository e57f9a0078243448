// SPDX-License-Identifier: MIT
#include "solving/clue_movement.h"

#include <algorithm>

#include "crossword/clue.h"
#include "crossword/fields.h"
#include "crossword/numbering.h"
#include "display/clue_page.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "solving/clue_selection.h"

namespace kalvon {

namespace {

constexpr int left_button = 1;
constexpr int right_button = 2;

int CurrentList() { return glavni.sel_broj != 0 ? glavni.sel_strana : glavni.smer; }

toolkit::ScrollBar& Bar(int strana) { return frm_glavni->scr_tekst(strana - 1); }

/// The first clue of a list from a number on, upwards or downwards; 0 if there is none.
int ClueFrom(int number, int step, int strana) {
  for (; number >= 1 && number <= glavni.broj_pitanja; number += step)
    if (BelongsTo(glavni.pitanja(number, 1), strana)) return number;
  return 0;
}

/// The clues of a list that are seen whole.
std::vector<PageClue> WholeClues(int strana) {
  std::vector<PageClue> clues = CluesOnPage(strana);
  std::erase_if(clues, [](const PageClue& clue) { return clue.last_row > list_rows; });
  return clues;
}

/// Clicks a clue, which comes to the head of its list if it is not seen whole.
void ClickClue(int number, int strana, int button) {
  if (number == 0) return;
  int row = 1;
  const auto seen = WholeClues(strana);
  const auto found = std::ranges::find(seen, number, &PageClue::number);
  if (found != seen.end()) {
    row = found->first_row;
  } else {
    const ClueCounts place = PlaceOfClue(glavni, number);
    Bar(strana).Value(strana == direction::across ? place.across : place.down);
  }
  klik_pitanje(strana - 1, button, 0, (row - 1) * list_row_height);
}

}  // namespace

void sledece_pitanje() {
  const int strana = CurrentList();
  ClickClue(ClueFrom(glavni.sel_broj + 1, 1, strana), strana, left_button);
}

void prethodno_pitanje() {
  const int strana = CurrentList();
  ClickClue(ClueFrom(glavni.sel_broj - 1, -1, strana), strana, left_button);
}

void drugi_spisak() {
  const int strana = direction::Other(CurrentList());
  const int number = ClueFrom(std::max(glavni.sel_broj, 1), 1, strana);
  ClickClue(number != 0 ? number : ClueFrom(glavni.broj_pitanja, -1, strana), strana, left_button);
}

void sledeca_strana() {
  const int strana = CurrentList();
  auto& bar = Bar(strana);
  const int whole = static_cast<int>(WholeClues(strana).size());
  const int next = bar.Value() + std::max(whole, 1);
  if (next <= bar.Max()) bar.Value(next);
}

void prethodna_strana() {
  const int strana = CurrentList();
  auto& bar = Bar(strana);
  const int before = bar.Value() - 1;
  if (before < 1) return;
  int head = before;
  bar.Value(head);
  while (head > 1) {
    bar.Value(head - 1);
    // How many clues a page has room for is known once it is printed.
    if (static_cast<int>(WholeClues(strana).size()) < before - head + 2) return bar.Value(head);
    --head;
  }
}

bool HasMedium() {
  if (glavni.sel_broj == 0) return false;
  const int x = glavni.pitanja(glavni.sel_broj, 2);
  const int y = glavni.pitanja(glavni.sel_broj, 3);
  return !Trimmed(ReadClue(glavni.ukr_polja(x, y, 2), glavni.sel_strana).media).empty();
}

void otvori_pitanje() { ClickClue(glavni.sel_broj, glavni.sel_strana, right_button); }

}  // namespace kalvon
