// SPDX-License-Identifier: MIT
#include "document/crossword_save.h"

#include <string>

#include "document/crossword_state.h"
#include "document/installments.h"
#include "files/file_rewrite.h"
#include "shell/toolkit/desktop/screen.h"

namespace kalvon {
namespace {

/// Whether the file goes on with the cells that were read from it, whatever letters the user has
/// put into them since. If it doesn't, it has become another crossword, which must stay.
bool HoldsCells(files::TextReader& file, int installment) {
  const CrosswordState& state = glavni;
  CellWalk walk(installment, state.nast_smer);
  for (int cell = state.nast_polja(installment); cell > 0; --cell) {
    walk.Next();
    const std::string line = file.Line();
    file.Line();
    if (WithoutUserLetter(line) != WithoutUserLetter(state.ukr_polja(walk.x(), walk.y(), 1)))
      return false;
  }
  return true;
}

void WriteCells(files::FileRewrite& file, int installment) {
  const CrosswordState& state = glavni;
  CellWalk walk(installment, state.nast_smer);
  // A file that was shorter than its size stays so.
  for (int cell = state.nast_polja(installment); cell > 0; --cell) {
    walk.Next();
    file.PrintLine(state.ukr_polja(walk.x(), walk.y(), 1));
    file.PrintLine(state.ukr_polja(walk.x(), walk.y(), 2));
  }
}

/// Rewrites the file of an installment, unless it was missing when the crossword was read.
void Rewrite(int installment) {
  if (glavni.nast_ucitan(installment) < 0) return;
  const std::string path = InstallmentPath(installment, "qvm");
  const std::string temporary = InstallmentPath(installment, "qvt");
  // The rewriting waits for another program that rewrites the same file, so it begins before the
  // header is read.
  files::FileRewrite rewrite(path, FileName(temporary));
  files::TextReader file(path);
  const Header header = ReadHeader(file);
  if (!HoldsCells(file, installment)) return;
  for (const std::string& line : header) rewrite.PrintLine(line);
  WriteCells(rewrite, installment);
  rewrite.Commit();
}

}  // namespace

void snimi_ukrstenicu() {
  toolkit::Screen::MousePointer(11);
  for (int i = 1; i <= glavni.nast_zadnji; ++i) files::pass_over([i] { Rewrite(i); });
  toolkit::Screen::MousePointer(0);
}

}  // namespace kalvon
