// SPDX-License-Identifier: MIT
// A crossword file: what can be read is written, and read again as it was.
#include "round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzFolder folder;
  ReadWriteRead(folder.Write("proba.qvm", Text(data, size)));
  return 0;
}
