// SPDX-License-Identifier: MIT
#include "exchange/remark.h"

#include <algorithm>

namespace kalvon::exchange {

void Remarks::Count(Matter matter, const std::string& detail) {
  const auto same = [&](const Remark& remark) {
    return remark.matter == matter && remark.detail == detail && remark.cell == GridCell{};
  };
  const auto found = std::ranges::find_if(remarks_, same);
  if (found == remarks_.end())
    Add({.matter = matter, .detail = detail});
  else
    ++found->times;
}

}  // namespace kalvon::exchange
