// SPDX-License-Identifier: MIT
#include "shell/strip.h"

#include <string>
#include <utility>
#include <vector>

#include "document/crossword_state.h"
#include "shell/commands.h"
#include "shell/forms/frm_glavni.h"
#include "shell/help.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/windows/strip.h"
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

void About() { glavni.vest = {.news = News::about}; }

struct MenuCommand {
  StripText text;  ///< Without one it is a dividing line.
  const char* keys = "";
  bool (*enabled)() = Always;
  void (*action)() = nullptr;
};

constexpr MenuCommand menu_commands[] = {
    {{"Učitaj ukrštenicu…", "Load crossword…"}, "Ctrl+O", NoHelpPanel, Press<command::load>},
    {{"Snimi", "Save"}, "Ctrl+S", OnCrossword, Press<command::save>},
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
     "Ctrl+P",
     OnCrossword,
     OnPuzzle<PuzzleOperation::count_wrong>},
    {{"Obriši pogrešna slova", "Erase wrong letters"},
     "Ctrl+Shift+P",
     OnCrossword,
     OnPuzzle<PuzzleOperation::erase_wrong>},
    {},
    {{"Opcije…", "Options…"}, "Ctrl+T", OnCrossword, Press<command::options>},
    {},
    {{"Uputstvo", "Help"}, "F1", Always, Press<command::help>},
    {{"Prečice na tastaturi", "Keyboard shortcuts"}, "Shift+F1", Always, ShowKeys},
    {{"O programu", "About"}, "Ctrl+F1", Always, About},
};

/// Steps of which the menu speaks.
std::size_t shown_steps = 0;

/// A mark for unsaved letters, and how many of the cells are filled.
std::string Status() {
  constexpr StripText unsaved = {"nesnimljeno", "unsaved"};
  const LetterCounts& slova = glavni.slova;
  if (slova.cells == 0) return "";
  std::string status = glavni.izmenjeno ? Shown(unsaved) + "   " : "";
  return status + std::to_string(slova.filled) + '/' + std::to_string(slova.cells);
}

}  // namespace

void ShowStripMenu() {
  shown_steps = EarlierSteps();
  constexpr StripText caption = {"Meni", "Menu"};
  const std::string steps = std::to_string(shown_steps);
  std::vector<toolkit::MenuRow> rows;
  for (const MenuCommand& command : menu_commands) {
    rows.push_back({.text = Shown(command.text, steps),
                    .keys = command.keys,
                    .enabled = command.enabled,
                    .action = command.action});
  }
  frm_glavni->strip.Menu(Shown(caption), std::move(rows));
}

void UpdateStrip() {
  if (EarlierSteps() != shown_steps) ShowStripMenu();
  frm_glavni->strip.Text(NewsText());
  frm_glavni->strip.Status(Status());
  frm_glavni->Modified(glavni.izmenjeno);
}

}  // namespace kalvon
