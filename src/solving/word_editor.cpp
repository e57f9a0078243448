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
#include "letters/typed_character.h"
#include "shell/forms/frm_glavni.h"
#include "solving/steps.h"
#include "solving/word_selection.h"

namespace kalvon {

namespace {

void Write(int place, char letter) {
  if (place >= LettersInEditor()) return;
  char& there = glavni.rec_tekst[static_cast<std::size_t>(place)];
  if (there != letter) {
    glavni.otkucano.push_back({place, there});
    glavni.vest = {.news = News::typed};
  }
  there = letter;
  ShowInBox(place);
}

void Back() {
  if (glavni.rec_poz > 0) glavni.rec_poz = glavni.rec_poz - 1;
}

void Forward() {
  if (glavni.rec_poz < LettersInEditor() - 1) glavni.rec_poz = glavni.rec_poz + 1;
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

void Last() { glavni.rec_poz = std::max(LettersInEditor() - 1, 0); }

/// Writes the word into the cells that it was read from, and shows the grid anew.
void WriteWord(StepKind kind, bool goes_on = false) {
  Step step = BeginStep(kind);
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
  EndStep(std::move(step), goes_on);
}

void Enter() { WriteWord(StepKind::word_entered); }

/// Writes what was just typed, where the user has chosen that. What is typed into a word before
/// something else happens is one step.
void WriteAsTyped() {
  if (!glavni.upis_u_hodu || glavni.otkucano.empty()) return;
  const int place = glavni.rec_poz;
  WriteWord(StepKind::word_typed, glavni.rec_se_kuca);
  glavni.rec_se_kuca = true;
  glavni.rec_poz = std::clamp(place, 0, std::max(LettersInEditor() - 1, 0));
}

/// The letter whose box has the focus, or else at which the keys act.
int FocusedPlace() {
  for (int box = 0; box < letter_boxes; ++box)
    if (frm_glavni->txt_rec(box).HasFocus()) return LetterOfBox(box);
  return glavni.rec_poz;
}

/// Puts letters into the boxes that were typed before these were filled anew.
void TypeAgain(const std::string& typed) {
  for (int place = 0; place < LettersInEditor(); ++place) {
    const char letter = typed[static_cast<std::size_t>(place)];
    if (letter != glavni.rec_tekst[static_cast<std::size_t>(place)]) Write(place, letter);
  }
}

/// Says why the last character has typed nothing. Keys that edit give characters below the blank.
void TellOfRefusal(bool past_the_word) {
  const char32_t character = glavni.znak;
  if (character <= U' ' || character == 0x7F) return;
  const Refusal why = past_the_word ? Refusal::past_the_word
                                    : WhyRefused(character, ChosenWriting(), glavni.sve_tastature);
  glavni.vest = {.news = News::letter_refused, .refusal = why};
}

struct Key {
  int code;
  void (*action)();
};

constexpr Key keys[] = {
    {0x08, BlankAndBack},     // Backspace
    {0x0D, Enter},            // Enter
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

void primi_znak(char32_t& character, bool shift) {
  glavni.znak = character;
  if (glavni.sve_tastature) character = SameLetter(character, ChosenWriting());
  character = WithoutCapsLock(character, shift);
}

void unos_znaka(int index, int key_code) {
  const int place = LetterOfBox(index);
  const char letter = LetterOfKey(key_code, ChosenWriting());
  if (letter == 0 || place >= LettersInEditor()) {
    TellOfRefusal(letter != 0);
    return;
  }
  if (glavni.vest.news == News::letter_refused) glavni.vest = {};
  Write(place, letter);
  glavni.rec_poz = place;
  Forward();
  WriteAsTyped();
  FocusLetter();
}

void resi_slovo() {
  const int place = FocusedPlace();
  if (place >= LettersInEditor()) return;
  const GridCell cell = glavni.rec_polja.at(static_cast<std::size_t>(place));
  const std::string& text = glavni.ukr_polja(cell.x, cell.y, 1);
  if (!HasSolution(text)) {
    glavni.vest = {.news = News::no_solution};
    return;
  }
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

void stani_na(int place) {
  const std::string typed = glavni.rec_tekst;
  const auto [x, y] = glavni.rec_polja.at(static_cast<std::size_t>(place));
  if (BringIntoView(x, y)) {
    oznaci_rec(0);
    TypeAgain(typed);
  }
  glavni.rec_poz = place;
  FocusLetters();
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
  WriteAsTyped();
  FocusLetter();
}

}  // namespace kalvon
