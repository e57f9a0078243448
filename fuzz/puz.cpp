// SPDX-License-Identifier: MIT
// A crossword in the format puz.
#include "exchange.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const kalvon::exchange::Format& format = *kalvon::exchange::FormatOfEnding("puz");
  ReadWriteRead(format, Text(data, size));
  return 0;
}
