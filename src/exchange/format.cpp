// SPDX-License-Identifier: MIT
#include "exchange/format.h"

#include <algorithm>
#include <vector>

#include "exchange/ipuz.h"
#include "exchange/jpz.h"
#include "exchange/puz.h"
#include "exchange/xd.h"

namespace kalvon::exchange {
namespace {

const std::vector<Format> formats = {
    {.ending = "ipuz", .fits = IsIpuz, .read = ReadIpuz, .write = WriteIpuz},
    {.ending = "jpz", .fits = IsJpz, .read = ReadJpz, .write = WriteJpz},
    {.ending = "puz", .fits = IsPuz, .read = ReadPuz, .write = WritePuz},
    {.ending = "xd", .fits = IsXd, .read = ReadXd, .write = WriteXd},
};

template <typename Test>
const Format* Find(Test test) {
  const auto found = std::ranges::find_if(formats, test);
  return found == formats.end() ? nullptr : &*found;
}

}  // namespace

std::span<const Format> Formats() { return formats; }

const Format* FormatOfContent(std::string_view bytes) {
  return Find([=](const Format& format) { return format.fits(bytes); });
}

const Format* FormatOfEnding(std::string_view ending) {
  return Find([=](const Format& format) { return format.ending == ending; });
}

}  // namespace kalvon::exchange
