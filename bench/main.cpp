// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string_view>

#include "shell/events.h"
#include "shell/forms/frm_glavni.h"
#include "shell/toolkit/windows/application.h"

namespace {

constexpr std::string_view start_only = "--start-only";

/// Starts the program as its own main does, and ends it once the window is painted.
int StartOnly(int argc, char** argv) {
  toolkit::Application application(argc, argv);
  kalvon::BindEvents();
  kalvon::frm_glavni->Show();
  QApplication::processEvents();
  QTimer::singleShot(0, [] { QApplication::exit(0); });
  const int status = application.Run();
  kalvon::UnloadForms();
  return status;
}

/// From the start of the process to its first painted window, and the memory that it took.
void StartProgram(benchmark::State& state) {
  char program[] = "/proc/self/exe";
  char option[] = "--start-only";
  char* arguments[] = {program, option, nullptr};
  for (auto _ : state) {
    pid_t process = 0;
    int status = 0;
    if (posix_spawn(&process, program, nullptr, nullptr, arguments, environ) != 0 ||
        waitpid(process, &status, 0) != process || status != 0)
      throw std::runtime_error("the program does not start");
  }
  rusage used{};
  getrusage(RUSAGE_CHILDREN, &used);
  state.counters["resident_MB"] =
      static_cast<double>(used.ru_maxrss) / 1024;  // NOLINT: a union of the system's header
}
BENCHMARK(StartProgram)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv("DISPLAY") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  if (argc > 1 && arguments[1] == start_only) return StartOnly(argc, argv);
  benchmark::Initialize(&argc, argv);
  toolkit::Application application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
