// SPDX-License-Identifier: MIT
// What the program writes, without its window, to be disturbed from outside:
//   kalvon-works save CROSSWORD LETTER
//   kalvon-works settings FOLDER SCRIPT
//   kalvon-works journal CROSSWORD FOLDER COMMANDS
// Each prints a line with the number of the error, or 0, as soon as it has done something. What has
// been printed is a promise.
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "crossword/cell.h"
#include "crossword/journal.h"
#include "crossword/reading.h"
#include "crossword/settings_file.h"
#include "crossword/writing.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

using namespace kalvon;

namespace {

using Arguments = std::span<const std::string>;

std::vector<GridCell> LetterCells(const Crossword& crossword) {
  std::vector<GridCell> cells;
  for (int y = 1; y <= crossword.ukr_visina; ++y)
    for (int x = 1; x <= crossword.ukr_sirina; ++x)
      if (IsLetterCell(crossword.ukr_polja(x, y, 1))) cells.push_back({x, y});
  return cells;
}

Step PutLetter(Crossword& crossword, GridCell cell, char letter) {
  Step step;
  ChangeCell(crossword, step, cell, WithUserLetter(crossword.ukr_polja(cell.x, cell.y, 1), letter));
  return step;
}

/// Puts a letter into all cells and saves. A line for each installment.
bool Save(Arguments arguments) {
  Crossword crossword = ReadCrossword(files::LogicPath(arguments[0]));
  for (const GridCell cell : LetterCells(crossword))
    PutLetter(crossword, cell, arguments[1].front());
  bool all = true;
  for (const auto [installment, error] : WriteCrossword(crossword)) {
    std::cout << error << ' ' << crossword.nast_staza(installment) << std::endl;
    all = all && error == 0;
  }
  return all;
}

bool SaveSettings(Arguments arguments) {
  const int error = files::pass_over([&] {
    WriteSettings(files::LogicPath(arguments[0]) + '\\', {.title = "Vostrand Kalvon Multimedia",
                                                          .folder = "Staza:c:\\home",
                                                          .script = "Pismo:" + arguments[1],
                                                          .layout = "Tastatura:Unikod"});
  });
  std::cout << error << ' ' << settings_name << std::endl;
  return error == 0;
}

void Print(const Changes& changes) {
  for (const LetterChange& change : changes)
    std::cout << ' ' << change.cell.x << ',' << change.cell.y << ':' << change.before << '>'
              << change.after;
}

/// All that a user has of a journal, in one line behind the number of a new error.
void PrintState(Journal& journal, const Crossword& crossword) {
  const History& history = journal.Steps();
  std::cout << journal.NewFailure() << " made " << history.Made() - history.First() << " of";
  for (std::size_t i = history.First(); i < history.End(); ++i) {
    Print(history.At(i).changes);
    std::cout << ';';
  }
  std::cout << " waiting " << journal.Waiting() << " earlier " << journal.EarlierSteps();
  Print(journal.EarlierWork().changes);
  std::cout << " spent " << journal.Spent() << " letters ";
  for (const GridCell cell : LetterCells(crossword))
    std::cout << UserLetter(crossword.ukr_polja(cell.x, cell.y, 1)) << '|';
  std::cout << std::endl;
}

/// Opens the journal and goes through the commands: a letter is a step in the next of some cells
/// that lie far from each other, "<" takes a step back, ">" makes it again, "+" spends a second,
/// and
/// "." is the end. A line for the opening and for each of them. The letters on the screen are no
/// part of the crossword's files.
bool KeepJournal(Arguments arguments) {
  Crossword crossword = ReadCrossword(files::LogicPath(arguments[0]));
  Journal journal(crossword, arguments[1]);
  PrintState(journal, crossword);
  const std::vector<GridCell> cells = LetterCells(crossword);
  std::size_t next = 0;
  for (const char command : arguments[2]) {
    if (command == '<') {
      journal.Undo(crossword);
    } else if (command == '>') {
      journal.Redo(crossword);
    } else if (command == '+') {
      journal.Spend(1);
    } else if (command == '.') {
      journal.End();
    } else {
      journal.Made(PutLetter(crossword, cells[next], command));
      next = (next + 13) % cells.size();
    }
    PrintState(journal, crossword);
  }
  return true;
}

struct Work {
  std::string_view name;
  std::size_t arguments;
  bool (*run)(Arguments);
};

constexpr Work works[] = {
    {"save", 2, Save}, {"settings", 2, SaveSettings}, {"journal", 3, KeepJournal}};

}  // namespace

int main(int count, char** values) {
  const auto given = std::span(values, static_cast<std::size_t>(count)).subspan(1);
  const std::vector<std::string> arguments(given.begin(), given.end());
  for (const Work& work : works) {
    if (arguments.size() != work.arguments + 1 || arguments[0] != work.name) continue;
    bool done = false;
    const int error = files::pass_over([&] { done = work.run(Arguments(arguments).subspan(1)); });
    if (error != 0) std::cout << error << " not begun" << std::endl;
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  std::cerr << "See the beginning of works.cpp.\n";
  return 2;
}
