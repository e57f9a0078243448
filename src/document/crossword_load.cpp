// SPDX-License-Identifier: MIT
#include "document/crossword_load.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "crossword/direction.h"
#include "crossword/reading.h"
#include "document/crossword_state.h"
#include "document/journal_keeping.h"
#include "files/folder_entries.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_ucit_snimi.h"

namespace kalvon {
namespace {

std::vector<std::string> FilesOfFolder() {
  const toolkit::FileList& list = frm_ucit_snimi->File1;
  std::vector<std::string> files(static_cast<std::size_t>(list.ListCount()));
  std::ranges::generate(files, [&, row = 0]() mutable { return list.List(row++); });
  return files;
}

void ForgetOldCrossword() {
  glavni.smer = direction::across;
  glavni.rec_x1 = glavni.rec_y1 = glavni.rec_x2 = glavni.rec_y2 = 0;
  glavni.klik_x = glavni.klik_y = 0;
  glavni.pret_x1 = glavni.pret_y1 = glavni.pret_x2 = glavni.pret_y2 = 0;
  glavni.sel_broj = 0;
  glavni.media_temp.clear();
  glavni.rec_tekst.clear();
  glavni.media_gotovo = 0;
  zatvori_dnevnik();
  frm_glavni->scr_hor.Value(0);
  frm_glavni->scr_ver.Value(0);
}

}  // namespace

Crossword OpenChosenCrossword() {
  // A look into another folder leaves the path of the file that was chosen before.
  if (frm_ucit_snimi->txt_ucit.Text().empty())
    throw files::RuntimeError(files::error::invalid_call);
  return OpenCrossword(glavni.ukr_staza, FilesOfFolder());
}

void ReplaceCrossword(Crossword opened) {
  ForgetOldCrossword();
  static_cast<Crossword&>(glavni) = std::move(opened);
  glavni.ukr_staza = files::LowerCase(glavni.ukr_staza);
}

}  // namespace kalvon
