// SPDX-License-Identifier: MIT
#include "converter/endings.h"

#include <algorithm>
#include <iterator>

#include "exchange/format.h"

namespace kalvon::converter {
namespace {

constexpr std::string_view pictures[] = {"pdf", "svg", "png"};

}  // namespace

bool IsPictureEnding(std::string_view ending) {
  return std::ranges::find(pictures, ending) != std::end(pictures);
}

bool IsTargetEnding(std::string_view ending) {
  return ending == "qvm" || IsPictureEnding(ending) || exchange::FormatOfEnding(ending) != nullptr;
}

std::string TargetEndings() {
  std::string endings = "qvm";
  for (const exchange::Format& format : exchange::Formats())
    endings.append(", ").append(format.ending);
  for (const std::string_view picture : pictures) endings.append(", ").append(picture);
  return endings;
}

}  // namespace kalvon::converter
