// SPDX-License-Identifier: MIT
// A crossword in the format xd.
#include "exchange.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const kalvon::exchange::Format& format = *kalvon::exchange::FormatOfEnding("xd");
  ReadWriteRead(format, Text(data, size));
  return 0;
}
