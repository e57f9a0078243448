// SPDX-License-Identifier: MIT
#include "solving/word_editor.h"

#include <algorithm>
#include <string>
#include <utility>

#include "crossword/cell.h"
#include "display/grid_view.h"
#include "display/letter_boxes.h"
#include "display/word_highlight.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"
#include "solving/steps.h"

namespace kalvon {

namespace {

/// Letters of the word that have a box.
int EditableLetters() { return std::min(static_cast<int>(glavni.rec_tekst.size()), letter_boxes); }

void Write(int place, char letter, const std::string& shown) {
  if (place >= EditableLetters()) return;
  char& there = glavni.rec_tekst[static_cast<std::size_t>(place)];
  if (there != letter) {
    glavni.otkucano.push_back({place, there});
    glavni.vest = {.news = News::typed};
  }
  there = letter;
  frm_glavni->txt_rec(place).Text(shown);
}

void Write(int place, char letter) {
  Write(place, letter, letter == '_' ? "_" : ShownLetter(letter, ChosenWriting()));
}

void Back() {
  if (glavni.rec_poz > 0) glavni.rec_poz = glavni.rec_poz - 1;
}

void Forward() {
  if (glavni.rec_poz < EditableLetters() - 1) glavni.rec_poz = glavni.rec_poz + 1;
}

void Blank() { Write(glavni.rec_poz, '_'); }

void BlankAndBack() {
  Blank();
  Back();
}

void BlankAndForward() {
  Blank();
  Forward();
}

void First() { glavni.rec_poz = 0; }

void Last() { glavni.rec_poz = std::max(EditableLetters() - 1, 0); }

/// Enter: writes the word into the cells that it was read from, and shows the grid anew.
void WriteBack() {
  Step step = BeginStep(StepKind::word_entered);
  const std::size_t letters = std::min(glavni.rec_tekst.size(), glavni.rec_polja.size());
  for (std::size_t i = 0; i < letters; ++i) {
    const auto [x, y] = glavni.rec_polja[i];
    std::string cell = glavni.ukr_polja(x, y, 1);
    const char letter = glavni.rec_tekst[i];
    if (!IsLetterCell(cell)) continue;
    if (letter == '_') {
      cell = WithoutUserLetter(cell);
    } else {
      cell.replace(1, UserLetter(cell).size(), 1, letter);  // The rest stays, whatever it is.
    }
    ChangeCell(glavni, step, {x, y}, std::move(cell));
  }
  crtaj_ukrstenicu();
  oznaci_rec(0);
  EndStep(std::move(step));
}

/// The place of the letter box that has the focus, or else at which the keys act.
int FocusedPlace() {
  for (int place = 0; place < EditableLetters(); ++place)
    if (frm_glavni->txt_rec(place).HasFocus()) return place;
  return glavni.rec_poz;
}

/// Puts letters into the boxes that were typed before these were filled anew.
void TypeAgain(const std::string& typed) {
  for (int place = 0; place < EditableLetters(); ++place) {
    const char letter = typed[static_cast<std::size_t>(place)];
    if (letter != glavni.rec_tekst[static_cast<std::size_t>(place)]) Write(place, letter);
  }
}

struct Key {
  int code;
  void (*action)();
};

constexpr Key keys[] = {
    {0x08, BlankAndBack},     // Backspace
    {0x0D, WriteBack},        // Enter
    {0x20, BlankAndForward},  // Space
    {0x23, Last},             // End
    {0x24, First},            // Home
    {0x25, Back},             // Left
    {0x26, Back},             // Up
    {0x27, Forward},          // Right
    {0x28, Forward},          // Down
    {0x2E, Blank},            // Delete
};

}  // namespace

void unos_znaka(int index, int key_code) {
  if (index >= EditableLetters()) return;
  const TypedLetter typed = LetterOfKey(key_code, ChosenWriting());
  if (typed.stored == 0) return;
  Write(index, typed.stored, typed.shown);
  glavni.rec_poz = index;
  Forward();
  frm_glavni->txt_rec(glavni.rec_poz).SetFocus();
}

void resi_slovo() {
  const int place = FocusedPlace();
  if (place >= EditableLetters()) return;
  const GridCell cell = glavni.rec_polja.at(static_cast<std::size_t>(place));
  const std::string& text = glavni.ukr_polja(cell.x, cell.y, 1);
  std::string typed = glavni.rec_tekst;
  typed[static_cast<std::size_t>(place)] = text.front();
  Step step = BeginStep(StepKind::letter_solved);
  ChangeCell(glavni, step, cell, WithUserLetter(text, text.front()));
  crtaj_ukrstenicu();
  oznaci_rec(0);
  TypeAgain(typed);
  glavni.rec_poz = place;
  Forward();
  FocusLetters();
  EndStep(std::move(step));
}

bool TakeBackTyped() {
  if (glavni.otkucano.empty()) return false;
  const auto [place, letter] = glavni.otkucano.back();
  Write(place, letter);
  glavni.otkucano.resize(glavni.otkucano.size() - 2);  // With what Write has just added.
  glavni.rec_poz = place;
  glavni.vest = {.news = News::untyped};
  FocusLetters();
  return true;
}

void unos_tastera(int /*index*/, int key_code) {
  for (const Key& key : keys) {
    if (key.code == key_code) key.action();
  }
  frm_glavni->txt_rec(glavni.rec_poz).SetFocus();
}

}  // namespace kalvon
