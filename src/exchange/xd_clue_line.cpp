// SPDX-License-Identifier: MIT
#include "exchange/xd_clue_line.h"

#include <algorithm>

namespace kalvon::exchange {

std::optional<XdClueLine> ClueLineOf(const XdLine& line) {
  XdClueLine clue;
  QStringView rest = line.text;
  if (!rest.isEmpty() && rest[0] >= u'A' && rest[0] <= u'Z') {
    clue.group = rest[0];
    rest = rest.mid(1);
  }
  const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  const auto* const end = std::find_if_not(rest.begin(), rest.end(), is_digit);
  clue.number = rest.left(end - rest.begin());
  rest = rest.mid(clue.number.size());
  if (clue.number.isEmpty()) return std::nullopt;
  if (rest.startsWith(u'.')) {
    clue.rest = rest.mid(1);
    return clue;
  }
  rest = rest.trimmed();
  const qsizetype colon = rest.indexOf(u':');
  if (!rest.startsWith(u'^') || colon < 0) return std::nullopt;
  clue.key = rest.mid(1, colon - 1).trimmed();
  clue.rest = rest.mid(colon + 1).trimmed();
  return clue;
}

}  // namespace kalvon::exchange
