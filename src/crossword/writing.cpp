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

/// Writes the cells, with the clues that the file has now. Error 321 if the file does not go on
/// with the cells that were read from it, whatever letters the user has put into them since: then
/// it has become another crossword, which must stay.
void WriteCells(files::FileRewrite& rewrite, files::TextReader& file, const Crossword& crossword,
                int installment) {
  CellWalk walk(crossword, installment);
  // A file that was shorter than its size stays so.
  for (int left = crossword.nast_polja(installment); left > 0; --left) {
    walk.Next();
    const std::string& cell = crossword.ukr_polja(walk.x(), walk.y(), 1);
    if (!DifferInLetterAtMost(file.Line(), cell))
      throw files::RuntimeError(files::error::invalid_file_format);
    rewrite.PrintLine(cell, file.LineEnd());
    rewrite.PrintLine(ReadAttributes(file, walk.AtLast()), file.LineEnd());
  }
}

void WriteInstallment(const Crossword& crossword, int installment, files::Deadline deadline) {
  static_cast<void>(crossword.nast_ucitan(installment));  // Raises 9 if not all has been read.
  const std::string& path = crossword.nast_staza(installment);
  // The rewriting waits for another program that rewrites the same file, so it begins before the
  // header is read.
  files::FileRewrite rewrite(path, FileName(WithExtension(path, "qvt")), deadline);
  files::TextReader file(path, files::as_the_first_line);
  for (const std::string& line : ReadHeader(file)) rewrite.PrintLine(line, file.LineEnd());
  WriteCells(rewrite, file, crossword, installment);
  rewrite.Commit();
}

}  // namespace

std::vector<InstallmentSave> WriteCrossword(const Crossword& crossword) {
  const files::Deadline deadline = files::InASecond();
  std::vector<InstallmentSave> saves;
  for (int i = 1; i <= crossword.nast_zadnji; ++i) {
    if (crossword.nast_staza(i).empty()) continue;
    saves.push_back({i, files::pass_over([&] { WriteInstallment(crossword, i, deadline); })});
  }
  return saves;
}

}  // namespace kalvon
