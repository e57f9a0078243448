// SPDX-License-Identifier: MIT
// A crossword of the format ipuz.
#include "exchange/ipuz.h"

#include "exchange_round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvon::exchange;
  const std::string_view bytes = Text(data, size);
  FormatOfContent(bytes);
  ReadWriteRead(ReadIpuz, WriteIpuz, bytes);
  return 0;
}
