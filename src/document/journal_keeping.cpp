// SPDX-License-Identifier: MIT
#include "document/journal_keeping.h"

#include <cstdint>
#include <ctime>

#include "crossword/journal_folder.h"
#include "document/crossword_state.h"
#include "document/time_spent.h"
#include "files/state_folder.h"

namespace kalvon {

void otvori_dnevnik() {
  glavni.dnevnik = std::make_shared<Journal>(glavni, files::StateFolder());
  if (glavni.vreme_od) nastavi_vreme();
}

void zatvori_dnevnik() {
  upisi_vreme();
  if (glavni.dnevnik) glavni.dnevnik->End();
  glavni.dnevnik.reset();
}

void pocisti_dnevnike() {
  files::pass_over([] {
    RemoveOldJournals(files::StateFolder(), static_cast<std::uint64_t>(std::time(nullptr)));
  });
}

}  // namespace kalvon
