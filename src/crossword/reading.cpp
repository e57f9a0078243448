// SPDX-License-Identifier: MIT
#include "crossword/reading.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "crossword/cell.h"
#include "crossword/clue.h"
#include "crossword/fields.h"
#include "crossword/header.h"
#include "crossword/installments.h"
#include "crossword/numbering.h"
#include "files/folder_entries.h"
#include "files/host_paths.h"

namespace kalvon {
namespace {

using NamesOnDisk = std::unordered_map<std::string, std::string>;

/// The names of the files by their lower case. Where two differ only in capitals, the chosen file
/// goes first.
NamesOnDisk ByLowerCase(const std::vector<std::string>& folder, std::string_view chosen) {
  NamesOnDisk names;
  names.reserve(folder.size() + 1);
  names.emplace(files::LowerCase(chosen), chosen);
  for (const std::string& file : folder) names.emplace(files::LowerCase(file), file);
  return names;
}

/// The paths of the installments, empty for those that are not in the folder.
Table<std::string, 1> PathsOf(const Installments& installments, const std::string& chosen,
                              const std::vector<std::string>& folder) {
  const std::string_view chosen_name = FileName(chosen);
  const std::string path = chosen.substr(0, chosen.size() - chosen_name.size());
  const NamesOnDisk present = ByLowerCase(folder, chosen_name);
  Table<std::string, 1> paths(std::array{IndexRange{1, installments.last}});
  for (int i = 1; i <= installments.last; ++i) {
    const auto found = present.find(
        files::LowerCase(installments.Numbered() ? InstallmentName(installments.base, i, "qvm")
                                                 : installments.base + ".qvm"));
    if (found != present.end()) paths.Mutable(i) = path + found->second;
  }
  return paths;
}

Header HeaderOf(const std::string& path) {
  files::TextReader file(path, files::as_the_first_line);
  return ReadHeader(file);
}

void CountCell(Crossword& crossword, std::string_view cell) {
  if (cell.starts_with('$')) {
    ++crossword.br_crnih;
    return;
  }
  const std::string_view across = Behind(cell, '$', 2);
  if (across.starts_with('1')) ++crossword.br_vodoravnih;
  if (Behind(across, '$').starts_with('1')) ++crossword.br_uspravnih;
}

void ReadCell(Crossword& crossword, files::TextReader& file, const CellWalk& walk, bool own) {
  // Behind a file that cannot be read on, there may be no cell left: that is not what went wrong.
  std::string line = file.Line();
  std::string& cell = crossword.ukr_polja.Mutable(walk.x(), walk.y(), 1);
  cell = std::move(line);
  if (own) CountCell(crossword, cell);
  crossword.ukr_polja.Mutable(walk.x(), walk.y(), 2) = ReadAttributes(file, own && walk.AtLast());
}

/// Reads the cells up to the end of the file and returns how many of them are the installment's
/// own. Lines behind the last one are ignored, unless the next installment stands beside.
int ReadCells(Crossword& crossword, files::TextReader& file, int installment,
              const Progress& progress) {
  int own_cells = 0;
  CellWalk walk(crossword, installment);
  while (!file.AtEnd()) {
    progress();
    walk.Next();
    const bool own = walk.installment() == installment;
    if (!own && crossword.nast_smer != join::side_by_side) break;
    ReadCell(crossword, file, walk, own);
    if (own) ++own_cells;
  }
  return own_cells;
}

int ReadFile(Crossword& crossword, int installment, const Progress& progress) {
  files::TextReader file(crossword.nast_staza(installment), files::as_the_first_line);
  Header header = ReadHeader(file);
  for (std::size_t line = 0; line < header.size(); ++line) progress();
  crossword.media_sadrzaj.Mutable(installment) = std::move(header.front());
  return ReadCells(crossword, file, installment, progress);
}

void FillMissing(Crossword& crossword, int installment, const Progress& progress) {
  CellWalk walk(crossword, installment);
  for (int cell = crossword.nast_sirina * crossword.nast_visina; cell > 0; --cell) {
    walk.Next();
    progress();
    crossword.ukr_polja.Mutable(walk.x(), walk.y(), 1) = black_square;
    crossword.ukr_polja.Mutable(walk.x(), walk.y(), 2).clear();
  }
}

}  // namespace

Crossword OpenCrossword(const std::string& path, const std::vector<std::string>& folder) {
  const Installments installments = FindInstallments(FileName(path), folder);
  const Header header = HeaderOf(path);
  const auto [width, height] = DimensionsOf(header);

  Crossword opened;
  opened.nast_cifre = installments.digits;
  opened.ukr_osnova = installments.base;
  opened.nast_sirina = width;
  opened.nast_visina = height;
  opened.nast_tekuci = installments.chosen;
  opened.nast_zadnji = installments.last;
  opened.nast_smer = JoinOf(header);
  const bool beside = opened.nast_smer == join::side_by_side;
  const Int16 columns = opened.ukr_sirina = width * (beside ? installments.last : 1);
  const Int16 rows = opened.ukr_visina = height * (beside ? 1 : installments.last);
  opened.ukr_polja = Table<std::string, 3>({{{0, columns}, {0, rows}, {0, 2}}});
  opened.rec_broj = Table<std::int32_t, 2>({{{0, columns}, {0, rows}}});
  opened.pitanja = Table<std::int32_t, 2>({{{0, columns * rows / 2}, {0, 3}}});
  opened.nast_staza = PathsOf(installments, path, folder);
  return opened;
}

Int16 StepsOf(const Crossword& crossword) {
  return crossword.ukr_visina * crossword.ukr_sirina * 2;
}

void ReadInstallments(Crossword& crossword, const Progress& progress) {
  static_cast<void>(StepsOf(crossword));  // Refuses a crossword that is too large.
  const int last = crossword.nast_zadnji;
  const std::array bounds = {IndexRange{1, last}};
  Table<Int16, 1> read(bounds);
  crossword.nast_polja = Table<std::int32_t, 1>(bounds);
  crossword.media_sadrzaj = Table<std::string, 1>(bounds);
  for (int i = 1; i <= last; ++i) {
    const bool present = !crossword.nast_staza(i).empty();
    read.Mutable(i) = present ? i : -1;
    if (present)
      crossword.nast_polja.Mutable(i) = ReadFile(crossword, i, progress);
    else
      FillMissing(crossword, i, progress);
  }
  crossword.nast_ucitan = std::move(read);
}

Crossword ReadCrossword(const std::string& path, const Progress& progress) {
  const std::string on_disk = files::PathOnDisk(path);
  std::vector<std::string> folder =
      files::ReadFolder(files::HostPath(on_disk.substr(0, on_disk.rfind('\\') + 1))).files;
  std::erase_if(folder,
                [](const std::string& file) { return !files::LowerCase(file).ends_with(".qvm"); });
  Crossword crossword = OpenCrossword(on_disk, folder);
  ReadInstallments(crossword, progress);
  NumberClues(crossword, progress);
  return crossword;
}

}  // namespace kalvon
