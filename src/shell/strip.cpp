// SPDX-License-Identifier: MIT
#include "shell/strip.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include "document/crossword_state.h"
#include "document/settings.h"
#include "files/folder_entries.h"
#include "multimedia/media_pane.h"
#include "shell/commands.h"
#include "shell/contrast.h"
#include "shell/file_opening.h"
#include "shell/file_saving.h"
#include "shell/forms/frm_glavni.h"
#include "shell/help.h"
#include "shell/remarks.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/windows/strip.h"
#include "shell/zoom.h"
#include "solving/cell_movement.h"
#include "solving/clue_movement.h"
#include "solving/next_clue.h"
#include "solving/puzzle_commands.h"
#include "solving/undo.h"
#include "solving/word_editor.h"

namespace kalvon {

namespace {

/// Whether the commands on a crossword can run: there is one, and no help panel lies over it.
bool OnCrossword() { return glavni.pre_ucitavanja == 0 && glavni.pomoc_otvorena == 0; }
bool Always() { return true; }
bool NoHelpPanel() { return glavni.pomoc_otvorena == 0; }
bool Undoable() { return OnCrossword() && CanUndo(); }
bool Redoable() { return OnCrossword() && CanRedo(); }
bool HasEarlierWork() { return OnCrossword() && EarlierSteps() > 0; }

template <int Index>
void Press() {
  komanda_glavni(Index);
}

template <PuzzleOperation Operation>
void OnPuzzle() {
  operacija_celine(Operation);
}

template <bool CrosswordState::*Choice>
bool IsChosen() {
  return glavni.*Choice;
}

template <bool CrosswordState::*Choice>
void TurnChoice() {
  glavni.*Choice = !(glavni.*Choice);
  snimi_izbor();
}

template <int Columns, int Rows>
void MoveCell() {
  pomeri_polje(Columns, Rows);
}

/// Whether the keys that turn pages are those of the clue lists: a bar that has the focus, or a
/// text, turns its own.
bool TurnsClues() {
  bool others = false;
  const auto look = [&](const toolkit::Control& control) { others |= control.HasFocus(); };
  frm_glavni->scr_tekst.ForEach(look);
  frm_glavni->txt_media.ForEach(look);
  look(frm_glavni->scr_hor);
  look(frm_glavni->scr_ver);
  return OnCrossword() && !others;
}

void OpenMedium() {
  if (HasMedium())
    otvori_pitanje();
  else
    glavni.vest = {.news = News::no_medium};
}

template <toolkit::MediaButton Button>
bool CanPressMedia() {
  return frm_glavni->mm_media.CanPress(Button);
}

bool Plays() { return CanPressMedia<toolkit::MediaButton::pause>(); }
bool CanPlay() { return Plays() || CanPressMedia<toolkit::MediaButton::play>(); }

void PlayOrPause() {
  frm_glavni->mm_media.Press(Plays() ? toolkit::MediaButton::pause : toolkit::MediaButton::play);
}

void StopMedium() { frm_glavni->mm_media.Press(toolkit::MediaButton::stop); }

void ChangeContrast() {
  TurnChoice<&CrosswordState::visok_kontrast>();
  primeni_kontrast();
}

bool FillsScreen() { return frm_glavni->FullScreen(); }
bool ShowsMedium() { return frm_glavni->pic_media(media_picture::pane).Visible(); }
bool CanLeave() { return !NoHelpPanel() || ShowsMedium() || FillsScreen(); }

/// Closes what lies nearest to the user.
void Leave() {
  if (!NoHelpPanel()) return zatvori_pomoc();
  ShowsMedium() ? zatvori_media() : ceo_ekran();
}

void About() { glavni.vest = {.news = News::about}; }

struct MenuCommand {
  StripText text;  ///< Without one it is a dividing line.
  const char* keys = "";
  bool (*enabled)() = Always;
  void (*action)() = nullptr;
  bool (*checked)() = nullptr;
  std::span<const MenuCommand> more = {};  ///< What a command without action opens.
  /// Or what it opens, as it is at the moment.
  std::vector<toolkit::MenuRow> (*rows)(const std::string& submenu) = nullptr;
};

/// A row for each crossword that was opened last: its name, and its folder.
std::vector<toolkit::MenuRow> RecentRows(const std::string& submenu) {
  std::vector<toolkit::MenuRow> rows;
  for (const std::string& path : glavni.nedavne) {
    const std::size_t name = path.rfind('/') + 1;
    std::string text = path.substr(name) + "  (" + path.substr(0, name) + ')';
    for (std::size_t i = 0; (i = text.find('&', i)) != std::string::npos; i += 2)
      text.insert(i, 1, '&');
    rows.push_back({.text = text,
                    .enabled = [path] { return NoHelpPanel() && files::Exists(path); },
                    .action = [path] { otvori_fajl(path); },
                    .submenu = submenu});
  }
  return rows;
}

template <printing::Contents Contents>
void Print() {
  stampaj(Contents);
}

constexpr MenuCommand movements[] = {
    {{"Polje levo", "Cell to the left"}, "Ctrl+Left", OnCrossword, MoveCell<-1, 0>},
    {{"Polje desno", "Cell to the right"}, "Ctrl+Right", OnCrossword, MoveCell<1, 0>},
    {{"Polje gore", "Cell above"}, "Ctrl+Up", OnCrossword, MoveCell<0, -1>},
    {{"Polje dole", "Cell below"}, "Ctrl+Down", OnCrossword, MoveCell<0, 1>},
    {{"Drugi smer", "Other direction"}, "Ctrl+Enter;Ctrl+Return", OnCrossword, okreni_smer},
    {},
    {{"Sledeće pitanje", "Next clue"}, "Alt+Down", OnCrossword, sledece_pitanje},
    {{"Prethodno pitanje", "Previous clue"}, "Alt+Up", OnCrossword, prethodno_pitanje},
    {{"Drugi spisak (ili `Alt+Right`)", "Other list (or Alt+Right)"},
     "Alt+Left;Alt+Right",
     OnCrossword,
     drugi_spisak},
    {{"Sledeća strana spiska", "Next page of the list"}, "PgDown", TurnsClues, sledeca_strana},
    {{"Prethodna strana spiska", "Previous page of the list"},
     "PgUp",
     TurnsClues,
     prethodna_strana},
    {},
    {{"Otvori multimediju", "Open multimedia"}, "Alt+Enter;Alt+Return", OnCrossword, OpenMedium},
    {{"Pusti ili zastani", "Play or pause"}, "Ctrl+M", CanPlay, PlayOrPause},
    {{"Zaustavi", "Stop"}, "Ctrl+Shift+M", CanPressMedia<toolkit::MediaButton::stop>, StopMedium},
    {{"Zatvori multimediju ili ceo ekran", "Close help, multimedia or full screen"},
     "Esc",
     CanLeave,
     Leave},
};

constexpr MenuCommand printouts[] = {
    {{"Sa upisanim slovima…", "With your letters…"},
     "Ctrl+P",
     OnCrossword,
     Print<printing::Contents::users_letters>},
    {{"Prazna…", "Empty…"}, "", OnCrossword, Print<printing::Contents::empty>},
    {{"Prazna, sa rešenjem na kraju…", "Empty, with the solution at the end…"},
     "",
     OnCrossword,
     Print<printing::Contents::solution>},
};

constexpr MenuCommand views[] = {
    {{"Uvećaj", "Zoom in"}, "Ctrl++;Ctrl+Shift++;Ctrl+=", Always, uvecaj},
    {{"Umanji", "Zoom out"}, "Ctrl+-", Always, umanji},
    {{"Prirodna veličina", "Actual size"}, "Ctrl+0", Always, prirodna_velicina},
    {{"Ceo ekran", "Full screen"}, "F11", Always, ceo_ekran, FillsScreen},
    {{"Visok kontrast", "High contrast"},
     "",
     Always,
     ChangeContrast,
     IsChosen<&CrosswordState::visok_kontrast>},
    {{"Prikaži vreme", "Show time"},
     "",
     Always,
     TurnChoice<&CrosswordState::vreme_u_traci>,
     IsChosen<&CrosswordState::vreme_u_traci>},
};

constexpr MenuCommand choices[] = {
    {{"Klik bira jedinu reč polja", "A click selects a cell's only word"},
     "",
     Always,
     TurnChoice<&CrosswordState::bira_jedinu>,
     IsChosen<&CrosswordState::bira_jedinu>},
    {{"Upisuj slova bez tastera `Enter`", "Write letters without Enter"},
     "",
     Always,
     TurnChoice<&CrosswordState::upis_u_hodu>,
     IsChosen<&CrosswordState::upis_u_hodu>},
    {{"Slova svih tastatura", "Letters of all keyboards"},
     "",
     Always,
     TurnChoice<&CrosswordState::sve_tastature>,
     IsChosen<&CrosswordState::sve_tastature>},
};

constexpr MenuCommand menu_commands[] = {
    {{"Učitaj ukrštenicu…", "Load crossword…"}, "Ctrl+O", NoHelpPanel, Press<command::load>},
    {{"Otvori…", "Open…"}, "Ctrl+Shift+O", NoHelpPanel, otvori},
    {.text = {"Nedavne", "Recent"}, .rows = RecentRows},
    {{"Primedbe…", "Remarks…"}, "", HasRemarks, pokazi_primedbe},
    {{"Snimi", "Save"}, "Ctrl+S", OnCrossword, Press<command::save>},
    {{"Sačuvaj kao…", "Save as…"}, "Ctrl+Shift+S", OnCrossword, sacuvaj_kao},
    {.text = {"Štampaj", "Print"}, .more = printouts},
    {{"Kraj", "Exit"}, "Ctrl+Q", Always, Press<command::end>},
    {},
    {{"Poništi", "Undo"}, "Ctrl+Z", Undoable, ponisti},
    {{"Ponovi", "Redo"}, "Ctrl+Y;Ctrl+Shift+Z", Redoable, ponovi},
    {{"Vrati prethodni rad (%)", "Bring earlier work back (%)"},
     "",
     HasEarlierWork,
     vrati_raniji_rad},
    {},
    {{"Reši slovo", "Solve letter"}, "Ctrl+L", OnCrossword, resi_slovo},
    {{"Reši reč", "Solve word"}, "Ctrl+R", OnCrossword, Press<command::solve>},
    {{"Obriši reč", "Erase word"}, "Ctrl+B", OnCrossword, Press<command::erase>},
    {{"Sledeća reč sa praznim poljem", "Next word with an empty cell"},
     "Ctrl+N",
     OnCrossword,
     sledeca_prazna},
    {.text = {"Kretanje", "Movement"}, .more = movements},
    {},
    {{"Reši ukrštenicu", "Solve puzzle"},
     "Ctrl+Shift+R",
     OnCrossword,
     OnPuzzle<PuzzleOperation::solve_all>},
    {{"Obriši ukrštenicu", "Erase puzzle"},
     "Ctrl+Shift+B",
     OnCrossword,
     OnPuzzle<PuzzleOperation::erase_all>},
    {{"Prebroj pogrešna slova", "Count wrong letters"},
     "Ctrl+K",
     OnCrossword,
     OnPuzzle<PuzzleOperation::count_wrong>},
    {{"Obriši pogrešna slova", "Erase wrong letters"},
     "Ctrl+Shift+K",
     OnCrossword,
     OnPuzzle<PuzzleOperation::erase_wrong>},
    {},
    {.text = {"Prikaz", "View"}, .more = views},
    {.text = {"Izbori", "Choices"}, .more = choices},
    {{"Opcije…", "Options…"}, "Ctrl+T", OnCrossword, Press<command::options>},
    {},
    {{"Uputstvo", "Help"}, "F1", Always, Press<command::help>},
    {{"Prečice na tastaturi", "Keyboard shortcuts"}, "Shift+F1", Always, ShowKeys},
    {{"O programu", "About"}, "Ctrl+F1", Always, About},
};

/// Steps and crosswords of which the menu speaks.
std::size_t shown_steps = 0;
std::vector<std::string> shown_files;

/// Hours and minutes, as "0:07".
std::string Hours(std::uint64_t seconds) {
  const std::uint64_t minutes = seconds / 60;
  return std::to_string(minutes / 60) + ':' + std::to_string(100 + minutes % 60).substr(1);
}

/// A mark for unsaved letters, the time spent if it is to be shown, and how many of the cells are
/// filled. What changes least stands at the right, where it keeps its place.
std::string Status() {
  constexpr StripText unsaved = {"nesnimljeno", "unsaved"};
  const LetterCounts& slova = glavni.slova;
  if (slova.cells == 0) return "";
  std::string status;
  if (glavni.izmenjeno) status += Shown(unsaved) + "   ";
  if (glavni.vreme_u_traci && glavni.dnevnik) status += Hours(glavni.dnevnik->Spent()) + "   ";
  return status + std::to_string(slova.filled) + '/' + std::to_string(slova.cells);
}

toolkit::MenuRow RowOf(const MenuCommand& command, const StripText& submenu) {
  return {.text = Shown(command.text, std::to_string(shown_steps)),
          .keys = command.keys,
          .enabled = command.enabled,
          .action = command.action,
          .checked = command.checked,
          .submenu = Shown(submenu)};
}

}  // namespace

void ShowStripMenu() {
  shown_steps = EarlierSteps();
  shown_files = glavni.nedavne;
  constexpr StripText caption = {"Meni", "Menu"};
  std::vector<toolkit::MenuRow> rows;
  for (const MenuCommand& command : menu_commands) {
    if (command.rows != nullptr)
      std::ranges::move(command.rows(Shown(command.text)), std::back_inserter(rows));
    else if (command.more.empty())
      rows.push_back(RowOf(command, {}));
    for (const MenuCommand& more : command.more) rows.push_back(RowOf(more, command.text));
  }
  frm_glavni->strip.Menu(Shown(caption), rows);
}

void UpdateStrip() {
  if (EarlierSteps() != shown_steps || glavni.nedavne != shown_files) ShowStripMenu();
  frm_glavni->strip.Text(NewsText());
  frm_glavni->strip.Status(Status());
  frm_glavni->Modified(glavni.izmenjeno);
}

}  // namespace kalvon
