// SPDX-License-Identifier: MIT
#include "solving/word_editor.h"

#include <algorithm>
#include <string>

#include "crossword/cell.h"
#include "display/grid_view.h"
#include "display/letter_boxes.h"
#include "display/word_highlight.h"
#include "display/writing.h"
#include "document/crossword_state.h"
#include "shell/forms/frm_glavni.h"

namespace kalvon {

namespace {

/// Letters of the word that have a box.
int EditableLetters() { return std::min(static_cast<int>(glavni.rec_tekst.size()), letter_boxes); }

void Write(int place, char letter, const std::string& shown) {
  if (place >= EditableLetters()) return;
  glavni.rec_tekst[static_cast<std::size_t>(place)] = letter;
  frm_glavni->txt_rec(place).Text(shown);
}

void Back() {
  if (glavni.rec_poz > 0) glavni.rec_poz = glavni.rec_poz - 1;
}

void Forward() {
  if (glavni.rec_poz < EditableLetters() - 1) glavni.rec_poz = glavni.rec_poz + 1;
}

void Blank() { Write(glavni.rec_poz, '_', "_"); }

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
  const std::size_t letters = std::min(glavni.rec_tekst.size(), glavni.rec_polja.size());
  for (std::size_t i = 0; i < letters; ++i) {
    const auto [x, y] = glavni.rec_polja[i];
    std::string& cell = glavni.ukr_polja.Mutable(x, y, 1);
    const char letter = glavni.rec_tekst[i];
    if (!IsLetterCell(cell)) continue;
    if (letter == '_') {
      cell = WithoutUserLetter(cell);
    } else {
      cell.replace(1, UserLetter(cell).size(), 1, letter);  // The rest stays, whatever it is.
    }
  }
  crtaj_ukrstenicu();
  oznaci_rec(0);
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

void unos_tastera(int /*index*/, int key_code) {
  for (const Key& key : keys) {
    if (key.code == key_code) key.action();
  }
  frm_glavni->txt_rec(glavni.rec_poz).SetFocus();
}

}  // namespace kalvon
