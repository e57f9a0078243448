// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "document/crossword_state.h"
#include "files/text_file.h"

namespace kalvon {

// The installments of a crossword: files of one size that are joined into one grid.

/// How they are joined, in the numbers of `nast_smer`.
namespace join {
inline constexpr int none = 0;
inline constexpr int side_by_side = 1;
inline constexpr int one_under_the_other = 2;
}  // namespace join

/// The nine lines before the cells.
using Header = std::array<std::string, 9>;

/// Reads the header from the start of a file. Error 62 if the file has fewer lines.
Header ReadHeader(files::TextReader& file);

/// What a header says of its grid.
struct Dimensions {
  int width = 0;   ///< Columns; 0 if it names none.
  int height = 0;  ///< Rows.
};
Dimensions DimensionsOf(const Header& header);

/// What the marks of a header say, one of `join`.
int JoinOf(const Header& header);

/// The name at the end of a path.
std::string_view FileName(std::string_view path);

/// What the name of the chosen file and its folder say.
struct Installments {
  std::string base;  ///< Name without extension and number.
  int digits = 0;    ///< Digits among its last three characters; 3 for a numbered crossword.
  int chosen = 1;    ///< Number of the chosen installment.
  int last = 1;      ///< The highest number in the folder, 0 if no file fits the base.
};

/// Finds the installments of the crossword with this file name among the files of its folder.
/// Error 5 for a name without an extension.
Installments FindInstallments(std::string_view name, const std::vector<std::string>& folder);

/// Walks over the cells of an installment in the order of its file: row by row from the top, each
/// row from the left. Behind the last one it walks on into the next installment.
class CellWalk {
 public:
  /// Stands before the first cell. Reads `nast_sirina` and `nast_visina`.
  CellWalk(int installment, int joined);

  void Next();

  // The grid cell.
  [[nodiscard]] int x() const;
  [[nodiscard]] int y() const;
  /// The installment that owns it.
  [[nodiscard]] int installment() const { return installment_; }

 private:
  int installment_;
  int joined_;
  int column_ = 0;
  int row_ = 1;
};

}  // namespace kalvon
