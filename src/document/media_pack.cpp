// SPDX-License-Identifier: MIT
#include "document/media_pack.h"

#include <cmath>
#include <string>
#include <string_view>

#include "crossword/fields.h"
#include "crossword/installments.h"
#include "crossword/media_table.h"
#include "crossword/media_wave.h"
#include "document/crossword_state.h"
#include "multimedia/media_pane.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {

namespace {

/// The installment in which the selected word begins, 0 if that cannot be told.
int InstallmentOfWord() {
  const bool down = glavni.nast_smer == join::one_under_the_other;
  const int cell = down ? glavni.pret_y1 : glavni.pret_x1;
  const int cells = down ? glavni.nast_visina : glavni.nast_sirina;
  if (cells == 0) return 0;
  return static_cast<int>(std::ceil(static_cast<double>(cell) / cells));
}

void Extract() {
  const MediaKind* const kind = KindOfMedium(glavni.media_fajl);
  if (kind == nullptr) return;
  const int installment = InstallmentOfWord();
  const auto entry = FindInTable(glavni.media_sadrzaj(installment), glavni.media_fajl);
  if (!entry || entry->size > kind->largest) return;
  const std::string path = glavni.app_staza + glavni.media_fajl;
  CutOut(WithExtension(glavni.nast_staza(installment), "qvd"), *entry, path);
  if (kind->medium == Medium::sound) CutOffTail(path);
}

std::string TypeOf(std::string_view name) {
  name = name.substr(0, name.find_last_not_of(' ') + 1);
  return std::string(LastCharacters(name, 3));
}

}  // namespace

void izvuci_media() {
  obrisi_temp();
  const toolkit::Hourglass hourglass;
  files::pass_over([] { Extract(); });
  // What is no medium in the program's folder is not looked at: the pane shows the clue alone.
  prikazi_media(KindOfMedium(glavni.media_fajl) != nullptr ? TypeOf(glavni.media_fajl) : "");
}

}  // namespace kalvon
