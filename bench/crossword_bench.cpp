// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "bench_program.h"
#include "crossword/reading.h"
#include "crossword/writing.h"
#include "files/host_paths.h"
#include "files/text_file.h"

namespace kalvon::bench {

namespace {

using ::benchmark::State;

/// Reads every byte of the files and looks at none: what no reading of a crossword can go below.
void ReadBytes(State& state, const std::vector<std::string>& host_paths) {
  for (auto _ : state) {
    for (const std::string& path : host_paths) {
      std::ifstream file(path, std::ios::binary | std::ios::ate);
      std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
      file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      ::benchmark::DoNotOptimize(bytes.data());
    }
  }
}

/// Reads them line by line, as every text file is read, and keeps none.
void ReadLines(State& state, std::vector<std::string> paths) {
  for (std::string& path : paths) path = files::LogicPath(path);
  for (auto _ : state) {
    for (const std::string& path : paths) {
      files::TextReader file(path);
      while (!file.AtEnd()) ::benchmark::DoNotOptimize(file.Line());
    }
  }
}

void ReadValue(State& state, const std::string& host_path) {
  const std::string path = files::LogicPath(host_path);
  for (auto _ : state) ::benchmark::DoNotOptimize(ReadCrossword(path));
}

void BytesOfLargest(State& state) {
  const ScratchFolder folder;
  folder.Write("merenje.qvm", CrosswordFile(largest));
  ReadBytes(state, {folder.Path("merenje.qvm")});
}

void LinesOfLargest(State& state) {
  const ScratchFolder folder;
  folder.Write("merenje.qvm", CrosswordFile(largest));
  ReadLines(state, {folder.Path("merenje.qvm")});
}

void ValueOfLargest(State& state) {
  const ScratchFolder folder;
  folder.Write("merenje.qvm", CrosswordFile(largest));
  ReadValue(state, folder.Path("merenje.qvm"));
}

void BytesOfInstallments(State& state) {
  const ScratchFolder folder;
  ReadBytes(state, WriteInstallments(folder, 999));
}

void LinesOfInstallments(State& state) {
  const ScratchFolder folder;
  ReadLines(state, WriteInstallments(folder, 999));
}

void ValueOfInstallments(State& state) {
  const ScratchFolder folder;
  ReadValue(state, WriteInstallments(folder, 999).at(499));
}

BENCHMARK(BytesOfLargest)->Unit(benchmark::kMillisecond);
BENCHMARK(LinesOfLargest)->Unit(benchmark::kMillisecond);
BENCHMARK(ValueOfLargest)->Unit(benchmark::kMillisecond);
BENCHMARK(BytesOfInstallments)->Unit(benchmark::kMillisecond);
BENCHMARK(LinesOfInstallments)->Unit(benchmark::kMillisecond);
BENCHMARK(ValueOfInstallments)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace kalvon::bench
