// SPDX-License-Identifier: MIT
#include "shell/remarks.h"

#include <vector>

#include "display/writing.h"
#include "letters/transliteration.h"
#include "shell/strip_texts.h"
#include "shell/toolkit/windows/desktop_dialogs.h"

namespace kalvon {

namespace {

std::vector<exchange::Remark> kept;

}  // namespace

std::string RemarkText(const exchange::Remark& remark) {
  const Writing writing = ChosenWriting();
  std::string place;
  if (remark.cell.y > 0)
    place = std::to_string(remark.cell.y) + ',' + std::to_string(remark.cell.x) + ": ";
  if (writing.english) return place + TextOf(remark, true);
  exchange::Remark as_it_is = remark;
  as_it_is.detail = '`' + remark.detail + '`';
  return place + InScript(TextOf(as_it_is, false), writing.latin);
}

void KeepRemarks(const exchange::Remarks& remarks) { kept = remarks.List(); }

bool HasRemarks() { return !kept.empty(); }

void pokazi_primedbe() {
  constexpr StripText title = {"Primedbe (red, kolona)", "Remarks (row, column)"};
  std::vector<std::string> lines;
  lines.reserve(kept.size());
  for (const exchange::Remark& remark : kept) lines.push_back(RemarkText(remark));
  toolkit::ShowLines(Shown(title), lines);
}

}  // namespace kalvon
