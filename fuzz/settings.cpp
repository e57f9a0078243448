// SPDX-License-Identifier: MIT
// The settings: what is read of them is written, and read again as it was.
#include "crossword/settings_file.h"
#include "fuzz_folder.h"

using namespace kalvon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzFolder folder;
  folder.Write(settings_name, Text(data, size));
  const Settings settings = ReadSettings(folder.Path());
  WriteSettings(folder.Path(), settings);
  Require(ReadSettings(folder.Path()) == settings);
  return 0;
}
