// SPDX-License-Identifier: MIT
#include "document/installment_reading.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "document/installments.h"
#include "document/load_progress.h"
#include "files/folder_entries.h"

namespace kalvon {
namespace {

constexpr auto missing_cell = "$2$";

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

/// The name of an installment's file, in lower case.
std::string NameOf(int installment) {
  const std::string number = glavni.nast_cifre == 3 ? InstallmentDigits(installment) : "";
  return files::LowerCase(glavni.ukr_osnova + number + ".qvm");
}

void CountCell(std::string_view cell) {
  if (cell.starts_with('$')) {
    ++glavni.br_crnih;
    return;
  }
  const std::string_view across = Behind(cell, '$', 2);
  if (across.starts_with('1')) ++glavni.br_vodoravnih;
  if (Behind(across, '$').starts_with('1')) ++glavni.br_uspravnih;
}

void ReadCell(files::TextReader& file, int x, int y, bool counted) {
  std::string& cell = glavni.ukr_polja.Mutable(x, y, 1);
  cell = file.Line();
  if (counted) CountCell(cell);
  std::string attributes = file.Line();
  std::ranges::replace(attributes, ';', ',');
  glavni.ukr_polja.Mutable(x, y, 2) = std::move(attributes);
}

/// Reads the cells up to the end of the file and returns how many of them are the installment's
/// own. Lines behind the last one are ignored, unless the next installment stands beside.
int ReadCells(files::TextReader& file, int installment, int joined) {
  int own_cells = 0;
  CellWalk walk(installment, joined);
  while (!file.AtEnd()) {
    ProgressStep();
    walk.Next();
    const bool own = walk.installment() == installment;
    if (!own && joined != join::side_by_side) break;
    ReadCell(file, walk.x(), walk.y(), own);
    if (own) ++own_cells;
  }
  return own_cells;
}

int ReadFile(const std::string& path, int installment, int joined) {
  files::TextReader file(path);
  Header header = ReadHeader(file);
  for (std::size_t line = 0; line < header.size(); ++line) ProgressStep();
  glavni.media_sadrzaj.Mutable(installment) = std::move(header.front());
  return ReadCells(file, installment, joined);
}

void FillMissing(int installment, int joined) {
  CellWalk walk(installment, joined);
  for (int cell = glavni.nast_sirina * glavni.nast_visina; cell > 0; --cell) {
    walk.Next();
    ProgressStep();
    glavni.ukr_polja.Mutable(walk.x(), walk.y(), 1) = missing_cell;
    glavni.ukr_polja.Mutable(walk.x(), walk.y(), 2).clear();
  }
}

}  // namespace

InstallmentsRead ReadInstallments(const std::vector<std::string>& folder, int joined) {
  const int last = glavni.nast_zadnji;
  const std::array bounds = {IndexRange{1, last}};
  InstallmentsRead read{Table<Int16, 1>(bounds), Table<std::int32_t, 1>(bounds)};
  glavni.media_sadrzaj = Table<std::string, 1>(bounds);
  const std::string_view chosen = FileName(glavni.ukr_ucitana);
  const NamesOnDisk present = ByLowerCase(folder, chosen);
  const std::string path = glavni.ukr_ucitana.substr(0, glavni.ukr_ucitana.size() - chosen.size());
  for (int i = 1; i <= last; ++i) {
    const auto name = present.find(NameOf(i));
    if (name != present.end()) {
      read.number.Mutable(i) = i;
      read.cells.Mutable(i) = ReadFile(path + name->second, i, joined);
    } else {
      read.number.Mutable(i) = -1;
      FillMissing(i, joined);
    }
  }
  return read;
}

}  // namespace kalvon
