// SPDX-License-Identifier: MIT
#include "document/crossword_save.h"

#include <string>
#include <utility>
#include <vector>

#include "crossword/installments.h"
#include "crossword/writing.h"
#include "document/crossword_state.h"
#include "document/facts.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {

void snimi_ukrstenicu() {
  const toolkit::Hourglass hourglass;
  Vest vest = {.news = News::saved};
  std::vector<int> written;
  for (const auto [installment, error] : WriteCrossword(glavni)) {
    if (error == 0)
      written.push_back(installment);
    else
      vest.news = News::save_failed;
    vest.files.push_back({std::string(FileName(glavni.nast_staza(installment))), error});
  }
  if (glavni.dnevnik) glavni.dnevnik->Saved(glavni, written);
  glavni.vest = std::move(vest);
  UpdateFacts();
}

}  // namespace kalvon
