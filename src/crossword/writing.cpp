// SPDX-License-Identifier: MIT
#include "crossword/writing.h"

#include <string>

#include "crossword/cell.h"
#include "crossword/header.h"
#include "crossword/installments.h"
#include "files/file_rewrite.h"
#include "files/run_time_error.h"
#include "files/text_file.h"

namespace kalvon {
namespace {

/// Whether the file goes on with the cells that were read from it, whatever letters the user has
/// put into them since. If it doesn't, it has become another crossword, which must stay.
bool HoldsCells(files::TextReader& file, const Crossword& crossword, int installment) {
  CellWalk walk(crossword, installment);
  for (int cell = crossword.nast_polja(installment); cell > 0; --cell) {
    walk.Next();
    const std::string line = file.Line();
    file.Line();
    if (WithoutUserLetter(line) != WithoutUserLetter(crossword.ukr_polja(walk.x(), walk.y(), 1)))
      return false;
  }
  return true;
}

void WriteCells(files::FileRewrite& file, const Crossword& crossword, int installment) {
  CellWalk walk(crossword, installment);
  // A file that was shorter than its size stays so.
  for (int cell = crossword.nast_polja(installment); cell > 0; --cell) {
    walk.Next();
    file.PrintLine(crossword.ukr_polja(walk.x(), walk.y(), 1));
    file.PrintLine(crossword.ukr_polja(walk.x(), walk.y(), 2));
  }
}

}  // namespace

void WriteInstallment(const Crossword& crossword, int installment) {
  if (crossword.nast_ucitan(installment) < 0) return;
  const std::string& path = crossword.nast_staza(installment);
  // The rewriting waits for another program that rewrites the same file, so it begins before the
  // header is read.
  files::FileRewrite rewrite(path, FileName(WithExtension(path, "qvt")));
  files::TextReader file(path);
  const Header header = ReadHeader(file);
  if (!HoldsCells(file, crossword, installment)) return;
  for (const std::string& line : header) rewrite.PrintLine(line);
  WriteCells(rewrite, crossword, installment);
  rewrite.Commit();
}

int WriteCrossword(const Crossword& crossword) {
  int first_error = 0;
  for (int i = 1; i <= crossword.nast_zadnji; ++i) {
    const int error = files::pass_over([&] { WriteInstallment(crossword, i); });
    if (first_error == 0) first_error = error;
  }
  return first_error;
}

}  // namespace kalvon
