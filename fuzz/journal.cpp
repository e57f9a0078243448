// SPDX-License-Identifier: MIT
// A journal: whole records in any order, or any bytes behind the first line. Whatever it holds, its
// steps can be taken back and made again, and a kill loses none of them.
#include "crossword/journal.h"

#include <fuzzer/FuzzedDataProvider.h>

#include "crossword/journal_folder.h"
#include "crossword/journal_records.h"
#include "crossword/reading.h"
#include "files/run_time_error.h"
#include "fuzz_folder.h"

using namespace kalvon;

namespace {

constexpr std::string_view crossword_text =
    "\r\nNaziv: Proba\r\nDimenzije:X=  2 Y=  2\r\nOpis: \r\nNastavak broj: 1\r\n"
    "H1: 0\r\nV1: 0\r\nH2: 0\r\nV2: 0\r\n"
    "M$0$1$1$00\r\n011$$$$Prvo$Drugo$\r\nI$0$0$0$00\r\n\r\nR$0$0$1$00\r\n001$$$$$$\r\n$1$\r\n\r\n";

std::string Records(FuzzedDataProvider& input) {
  std::string bytes;
  while (input.remaining_bytes() > 0) {
    Record record{.kind = static_cast<RecordKind>(input.ConsumeIntegralInRange(1, 9))};
    record.time = input.ConsumeIntegral<std::uint32_t>();
    record.number = input.ConsumeIntegralInRange<std::uint64_t>(0, 9);
    record.waiting.from = input.ConsumeIntegralInRange<std::size_t>(0, 9) - 1;
    record.waiting.to = input.ConsumeIntegralInRange<std::size_t>(0, 9);
    record.laid = input.ConsumeIntegralInRange<std::size_t>(0, 9) - 1;
    record.step.kind = static_cast<StepKind>(input.ConsumeIntegralInRange(1, 8));
    while (input.ConsumeBool()) {
      record.step.changes.push_back(
          {{input.ConsumeIntegralInRange(0, 3), input.ConsumeIntegralInRange(0, 3)},
           input.ConsumeRandomLengthString(2),
           input.ConsumeRandomLengthString(2)});
    }
    bytes += Encode(record);
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzFolder folder;
  const std::string path = folder.Write("proba.qvm", crossword_text);
  const std::string journals = folder.HostPath() / "journals";
  FuzzedDataProvider input(data, size);
  std::string bytes = input.ConsumeBool() ? Records(input) : input.ConsumeRemainingBytesAsString();
  Crossword crossword = ReadCrossword(path);
  { const Journal made(crossword, journals); }
  const auto file = std::filesystem::directory_iterator(journals)->path();
  std::ofstream(file, std::ios::binary) << journal_first_line << bytes;

  Crossword shown;
  {
    Journal journal(crossword, journals);
    while (journal.Undo(crossword) != nullptr) {
    }
    while (journal.Redo(crossword) != nullptr) {
    }
    shown = crossword;
    if (const Step step = journal.EarlierWork(); Fits(crossword, step)) {
      Apply(crossword, step);
      journal.Made(step);
      shown = crossword;
    }
  }
  crossword = ReadCrossword(path);
  const Journal again(crossword, journals);
  Require(crossword == shown);
  return 0;
}
