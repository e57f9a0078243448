// SPDX-License-Identifier: MIT
#include "crossword/installments.h"

#include <algorithm>

#include "crossword/fields.h"
#include "files/run_time_error.h"

namespace kalvon {
namespace {

constexpr std::string_view nule = "00000";
constexpr std::size_t number_length = 3;
// Only a base of this length has installments.
constexpr int base_length = 5;

/// Characters of a name in the host's UTF-8.
std::ptrdiff_t CharactersOf(std::string_view name) {
  return std::ranges::count_if(name, [](char c) { return (c & 0xC0) != 0x80; });
}

/// The highest number among the files of a folder with this base, 0 if there are none.
int LastNumber(std::string_view base, const std::vector<std::string>& folder) {
  int last = 0;
  if (CharactersOf(base) != base_length) return last;
  for (const std::string_view file : folder) {
    if (!file.starts_with(base)) continue;
    last = std::max(last, DecimalValue(file.substr(base.size(), number_length)));
  }
  return last;
}

}  // namespace

std::string_view FileName(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

std::string InstallmentName(std::string_view base, int number, std::string_view extension) {
  const std::string digits = std::to_string(number);
  std::string name(base);
  name.append(nule.substr(0, number_length - std::min(number_length, digits.size())));
  return name.append(digits).append(".").append(extension);
}

std::string WithExtension(std::string path, std::string_view extension) {
  if (path.size() < extension.size()) throw files::RuntimeError(files::error::invalid_call);
  return path.replace(path.size() - extension.size(), extension.size(), extension);
}

Installments FindInstallments(std::string_view name, const std::vector<std::string>& folder) {
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos) throw files::RuntimeError(files::error::invalid_call);
  const std::string_view bare_name = name.substr(0, dot);
  const std::string_view number = LastCharacters(bare_name, number_length);

  Installments found{.base = std::string(bare_name)};
  found.digits =
      static_cast<int>(std::ranges::count_if(number, [](char c) { return c >= '0' && c <= '9'; }));
  if (!found.Numbered()) return found;

  const std::string_view base = bare_name.substr(0, bare_name.size() - number_length);
  const int last = LastNumber(base, folder);
  if (last == 0)
    found.digits = 0;  // They number nothing and belong to the name.
  else
    found = {std::string(base), found.digits, DecimalValue(number), last};
  return found;
}

CellWalk::CellWalk(const Crossword& crossword, int installment)
    : width_(crossword.nast_sirina),
      height_(crossword.nast_visina),
      beside_(crossword.nast_smer == join::side_by_side),
      installment_(installment) {}

void CellWalk::Next() {
  if (++column_ <= width_) return;
  column_ = 1;
  if (++row_ <= height_) return;
  row_ = 1;
  ++installment_;
}

}  // namespace kalvon
