// SPDX-License-Identifier: MIT
#include "shell/spoken_names.h"

#include <string>

#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/strip_texts.h"

namespace kalvon {

namespace {

struct SpokenName {
  toolkit::Control& (*control)() = nullptr;
  StripText name;
};

// The indexes are those of the control arrays.
constexpr SpokenName names[] = {
    {[]() -> toolkit::Control& { return frm_glavni->pic_ukr; }, {"Mreža", "Grid"}},
    {[]() -> toolkit::Control& { return frm_glavni->scr_hor; },
     {"Pomeranje mreže levo i desno", "Move the grid left and right"}},
    {[]() -> toolkit::Control& { return frm_glavni->scr_ver; },
     {"Pomeranje mreže gore i dole", "Move the grid up and down"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_brojevi(0); },
     {"Brojevi redova", "Numbers of the rows"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_brojevi(1); },
     {"Brojevi kolona", "Numbers of the columns"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_tekst(0); },
     {"Vodoravna pitanja", "Clues across"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_tekst(1); },
     {"Uspravna pitanja", "Clues down"}},
    {[]() -> toolkit::Control& { return frm_glavni->scr_tekst(0); },
     {"Listanje vodoravnih pitanja", "Turn the pages of the clues across"}},
    {[]() -> toolkit::Control& { return frm_glavni->scr_tekst(1); },
     {"Listanje uspravnih pitanja", "Turn the pages of the clues down"}},
    {[]() -> toolkit::Control& { return frm_glavni->txt_rec1; }, {"Pomoć", "Help"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_media(media_picture::pane); },
     {"Multimedijalno pitanje", "Multimedia clue"}},
    {[]() -> toolkit::Control& { return frm_glavni->pic_media(media_picture::display); },
     {"Slika", "Picture"}},
    {[]() -> toolkit::Control& { return frm_glavni->txt_media(0); }, {"Pitanje", "Clue"}},
    {[]() -> toolkit::Control& { return frm_glavni->txt_media(1); }, {"Tekst", "Text"}},
    {[]() -> toolkit::Control& { return frm_glavni->mm_media; }, {"Reprodukcija", "Player"}},
    {[]() -> toolkit::Control& { return frm_ucit_snimi->Drive1; }, {"Disk", "Drive"}},
    {[]() -> toolkit::Control& { return frm_ucit_snimi->Dir1; }, {"Fascikla", "Folder"}},
    {[]() -> toolkit::Control& { return frm_ucit_snimi->File1; },
     {"Ukrštenice u fascikli", "Crosswords in the folder"}},
    {[]() -> toolkit::Control& { return frm_ucit_snimi->txt_ucit; },
     {"Izabrana ukrštenica", "Chosen crossword"}},
    {[]() -> toolkit::Control& { return frm_ucit_snimi->pic_status; },
     {"Tok učitavanja", "Progress of the load"}},
};

/// The label beside the number of wrong letters.
constexpr int number_of_wrong = 2;

/// A button of the options that shows a check mark, and the label beside it.
struct MarkButton {
  int button;
  int label;
};
constexpr MarkButton mark_buttons[] = {{option_command::erase_all, 0},
                                       {option_command::solve_all, 1},
                                       {option_command::count_wrong, number_of_wrong},
                                       {option_command::erase_wrong, 3}};

}  // namespace

void NameControls() {
  for (const SpokenName& row : names) row.control().SpokenName(Shown(row.name));

  constexpr StripText letter = {"Slovo %", "Letter %"};
  frm_glavni->txt_rec.ForEach([&](toolkit::TextBox& box) {
    box.SpokenName(Shown(letter, std::to_string(box.Index() + 1)));
  });

  constexpr StripText play = {"Pusti", "Play"};
  constexpr StripText pause = {"Zastani", "Pause"};
  constexpr StripText stop = {"Prekini", "Stop"};
  frm_glavni->mm_media.SpokenNames(Shown(play), Shown(pause), Shown(stop));

  const auto said_by = [](const toolkit::Label& label) { return label.Decoded(label.Caption()); };
  for (const auto& [button, label] : mark_buttons)
    frm_opcije->cmd_opcije(button).SpokenName(said_by(frm_opcije->Label1(label)));
  frm_opcije->Label2.SpokenDescription(said_by(frm_opcije->Label1(number_of_wrong)));
}

}  // namespace kalvon
