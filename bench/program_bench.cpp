// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <QtCore/Qt>

#include <string>

#include "bench_program.h"
#include "display/clue_lists.h"
#include "display/font_change.h"
#include "display/grid_view.h"
#include "document/crossword_save.h"
#include "document/crossword_state.h"
#include "shell/commands.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "solving/clue_selection.h"
#include "solving/puzzle_commands.h"
#include "solving/word_editor.h"
#include "solving/word_selection.h"

namespace kalvon::bench {

namespace {

using ::benchmark::State;

constexpr int enter = 0x0D;

/// A program with one crossword on the screen.
class Loaded : public BenchProgram {
 public:
  explicit Loaded(const FileShape& shape) {
    folder().Write("merenje.qvm", CrosswordFile(shape));
    Choose("merenje.qvm");
    Load();
  }
};

void LoadLargestFile(State& state) {
  const BenchProgram program;
  program.folder().Write("merenje.qvm", CrosswordFile(largest));
  for (auto _ : state) {
    state.PauseTiming();
    program.Choose("merenje.qvm");
    state.ResumeTiming();
    BenchProgram::Load();
  }
}

void LoadManyInstallments(State& state) {
  const BenchProgram program;
  WriteInstallments(program.folder(), 999);
  for (int i = 1; i <= 1000; ++i)
    program.folder().Write("druga" + std::to_string(1000 + i) + ".qvm", "");
  for (auto _ : state) {
    state.PauseTiming();
    program.Choose("zima1500.qvm");
    state.ResumeTiming();
    BenchProgram::Load();
  }
}

void RepaintFullView(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  for (auto _ : state) crtaj_ukrstenicu();
}

// By the zoom, which is an argument in per mille, to the painted screen.

class Zoomed : public Loaded {
 public:
  explicit Zoomed(const State& state) : Loaded({.columns = 15, .rows = 15}) {
    BenchProgram::Zoom(static_cast<double>(state.range(0)) / 1000);
  }
};

void ZoomedRepaint(State& state) {
  const Zoomed program(state);
  for (auto _ : state) {
    crtaj_ukrstenicu();
    BenchProgram::Paint();
  }
}

void ZoomedEnter(State& state) {
  const Zoomed program(state);
  for (auto _ : state) BenchProgram::Press(Qt::Key_Return);
}

void ZoomedClick(State& state) {
  const Zoomed program(state);
  bool first = false;
  for (auto _ : state) {
    klik_polje(first ? 14 : 14 + 28 * 7, 14 + 28 * 6);
    BenchProgram::Paint();
    first = !first;
  }
}

void ZoomedScroll(State& state) {
  const Loaded program(largest);
  BenchProgram::Zoom(static_cast<double>(state.range(0)) / 1000);
  auto& bar = frm_glavni->scr_hor;
  for (auto _ : state) {
    bar.Value(bar.Value() == bar.Max() ? 0 : bar.Value() + 1);
    BenchProgram::Paint();
  }
}

/// One turn of the wheel.
void ChangeZoom(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  bool larger = false;
  for (auto _ : state) {
    BenchProgram::Zoom(larger ? 4 : 3);
    larger = !larger;
  }
}

void EnterWord(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  for (auto _ : state) unos_tastera(0, enter);
}

/// Enter, undo and redo by their keys, to the painted screen.
void PressEnter(State& state) {
  const Loaded program(largest);
  for (auto _ : state) BenchProgram::Press(Qt::Key_Return);
}

/// Of one word, or of all that the crossword has.
void UndoRedo(State& state) {
  const Loaded program(largest);
  if (state.range(0) != 0)
    operacija_celine(PuzzleOperation::erase_all);
  else
    komanda_glavni(command::erase);
  bool undo = true;
  for (auto _ : state) {
    BenchProgram::Press(undo ? Qt::Key_Z : Qt::Key_Y, true);
    undo = !undo;
  }
  if (glavni.vest.news != (undo ? News::redone : News::undone))
    state.SkipWithError("no step was taken back or made again");
}

void ClickGrid(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  bool first = false;
  for (auto _ : state) {
    klik_polje(first ? 14 : 14 + 28 * 7, 14 + 28 * 6);
    first = !first;
  }
}

void ScrollGrid(State& state) {
  const Loaded program(largest);
  auto& bar = frm_glavni->scr_hor;
  for (auto _ : state) bar.Value(bar.Value() == bar.Max() ? 0 : bar.Value() + 1);
}

void SaveLargest(State& state) {
  const Loaded program(largest);
  for (auto _ : state) snimi_ukrstenicu();
}

void ClickClue(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  int row = 0;
  for (auto _ : state) {
    klik_pitanje(0, 1, 20, 15.0 * row);
    row = (row + 4) % 14;
  }
}

/// A step back and forth on the across list, from the given end of the crossword.
void ScrollClues(State& state) {
  const Loaded program(largest);
  auto& bar = frm_glavni->scr_tekst(0);
  const bool at_end = state.range(0) != 0;
  const int place = at_end ? bar.Max() - 20 : 1;
  bar.Value(place);
  bool forth = true;
  for (auto _ : state) {
    bar.Value(forth ? place + 1 : place);
    forth = !forth;
  }
}

void SolvePuzzle(State& state) {
  const Loaded program(largest);
  for (auto _ : state) operacija_celine(PuzzleOperation::solve_all);
}

void ChangeScript(State& state) {
  const Loaded program({.columns = 15, .rows = 15});
  bool cyrillic = false;
  for (auto _ : state) {
    cyrillic = !cyrillic;
    frm_opcije->opt_opcije(cyrillic ? 0 : 1).Value(true);
    primeni_font();
  }
}

BENCHMARK(LoadLargestFile)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadManyInstallments)->Unit(benchmark::kMillisecond);
BENCHMARK(RepaintFullView)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomedRepaint)->Arg(1000)->Arg(2000)->Arg(4400)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomedEnter)->Arg(1000)->Arg(2000)->Arg(4400)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomedClick)->Arg(1000)->Arg(2000)->Arg(4400)->Unit(benchmark::kMillisecond);
BENCHMARK(ZoomedScroll)->Arg(1000)->Arg(2000)->Arg(4400)->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeZoom)->Unit(benchmark::kMillisecond);
BENCHMARK(EnterWord)->Unit(benchmark::kMillisecond);
BENCHMARK(PressEnter)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoRedo)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ClickGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollGrid)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveLargest)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ClickClue)->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollClues)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(SolvePuzzle)->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeScript)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace kalvon::bench
