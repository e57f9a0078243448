// SPDX-License-Identifier: MIT
// A set of installments, up to four, the first of which is opened.
#include "crossword/installments.h"
#include "round_trip.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzFolder folder;
  int number = 0;
  for (const std::string_view part : Parts(Text(data, size), 4))
    if (++number; !part.empty())
      folder.Write(kalvon::InstallmentName("zima1", number, "qvm"), part);
  ReadWriteRead(folder.Path() + kalvon::InstallmentName("zima1", 1, "qvm"));
  return 0;
}
