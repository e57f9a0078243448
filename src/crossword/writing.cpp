// SPDX-License-Identifier: MIT
#include "crossword/writing.h"

#include <string>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/header.h"
#include "crossword/installments.h"
#include "files/file_rewrite.h"
#include "files/run_time_error.h"
#include "files/text_file.h"

namespace kalvon {
namespace {

/// Writes the cells, with the clues that the file has now. False if the file does not go on with
/// the cells that were read from it, whatever letters the user has put into them since: then it has
/// become another crossword, which must stay.
bool WriteCells(files::FileRewrite& rewrite, files::TextReader& file, const Crossword& crossword,
                int installment) {
  CellWalk walk(crossword, installment);
  // A file that was shorter than its size stays so.
  for (int left = crossword.nast_polja(installment); left > 0; --left) {
    walk.Next();
    const std::string& cell = crossword.ukr_polja(walk.x(), walk.y(), 1);
    if (WithoutUserLetter(file.Line()) != WithoutUserLetter(cell)) return false;
    rewrite.PrintLine(cell, file.LineEnd());
    rewrite.PrintLine(ReadAttributes(file, walk.AtLast()), file.LineEnd());
  }
  return true;
}

void WriteInstallment(const Crossword& crossword, int installment, files::Deadline deadline) {
  if (crossword.nast_ucitan(installment) < 0) return;
  const std::string& path = crossword.nast_staza(installment);
  // The rewriting waits for another program that rewrites the same file, so it begins before the
  // header is read.
  files::FileRewrite rewrite(path, FileName(WithExtension(path, "qvt")), deadline);
  files::TextReader file(path, files::as_the_first_line);
  for (const std::string& line : ReadHeader(file)) rewrite.PrintLine(line, file.LineEnd());
  if (WriteCells(rewrite, file, crossword, installment)) rewrite.Commit();
}

}  // namespace

int WriteCrossword(const Crossword& crossword) {
  const files::Deadline deadline = files::InASecond();
  int first_error = 0;
  for (int i = 1; i <= crossword.nast_zadnji; ++i) {
    const int error = files::pass_over([&] { WriteInstallment(crossword, i, deadline); });
    if (first_error == 0) first_error = error;
  }
  return first_error;
}

}  // namespace kalvon
