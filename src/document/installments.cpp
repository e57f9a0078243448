// SPDX-License-Identifier: MIT
#include "document/installments.h"

#include <algorithm>
#include <utility>

namespace kalvon {
namespace {

constexpr int number_length = 3;
// Only a base of this length has installments.
constexpr int base_length = 5;

/// Characters of a name in the host's UTF-8.
std::ptrdiff_t CharactersOf(std::string_view name) {
  return std::ranges::count_if(name, [](char c) { return (c & 0xC0) != 0x80; });
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
  return text.substr(text.size() - std::min(count, text.size()));
}

}  // namespace

Header ReadHeader(files::TextReader& file) {
  Header header;
  for (std::string& line : header) line = file.Line();
  return header;
}

Dimensions DimensionsOf(const Header& header) {
  // As in "label:X= 15 Y= 20": two free characters before the width, the height at the end.
  const std::string_view line = header[2];
  const std::string_view value = Behind(line, ':');
  const std::string_view width = value.substr(std::min<std::size_t>(2, value.size()), 3);
  return {DecimalValue(width), DecimalValue(LastCharacters(line, 3))};
}

int JoinOf(const Header& header) {
  using Mark = std::pair<std::size_t, int>;
  constexpr std::array marks = {Mark{5, join::side_by_side}, Mark{6, join::one_under_the_other},
                                Mark{7, join::side_by_side}, Mark{8, join::one_under_the_other}};
  // The last marked line wins. Only its last character counts, so a 10 marks nothing.
  int joined = join::none;
  for (const auto& [line, mark] : marks) {
    if (DecimalValue(LastCharacters(header.at(line), 1)) > 0) joined = mark;
  }
  return joined;
}

std::string_view FileName(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

Installments FindInstallments(std::string_view name, const std::vector<std::string>& folder) {
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos) throw files::RuntimeError(files::error::invalid_call);
  const std::string_view bare_name = name.substr(0, dot);
  const std::string_view number = LastCharacters(bare_name, number_length);

  Installments found{.base = std::string(bare_name)};
  found.digits =
      static_cast<int>(std::ranges::count_if(number, [](char c) { return c >= '0' && c <= '9'; }));
  if (found.digits != number_length) return found;

  found.base.resize(found.base.size() - number_length);
  found.chosen = DecimalValue(number);
  found.last = 0;
  if (CharactersOf(found.base) != base_length) return found;
  for (const std::string_view file : folder) {
    if (!file.starts_with(found.base)) continue;
    found.last = std::max(found.last, DecimalValue(file.substr(found.base.size(), number_length)));
  }
  return found;
}

CellWalk::CellWalk(int installment, int joined) : installment_(installment), joined_(joined) {}

void CellWalk::Next() {
  if (++column_ <= glavni.nast_sirina) return;
  column_ = 1;
  if (++row_ <= glavni.nast_visina) return;
  row_ = 1;
  ++installment_;
}

int CellWalk::x() const {
  const bool beside = joined_ == join::side_by_side;
  return column_ + (beside ? (installment_ - 1) * glavni.nast_sirina : 0);
}

int CellWalk::y() const {
  const bool beside = joined_ == join::side_by_side;
  return row_ + (beside ? 0 : (installment_ - 1) * glavni.nast_visina);
}

}  // namespace kalvon
