// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "crossword/crossword.h"

namespace kalvon {

// The installments of a crossword: files of one size that are joined into one grid.

/// The name at the end of a path.
std::string_view FileName(std::string_view path);

/// The name of the file of an installment of a crossword with numbers: "zima1", 3 and "qvm" give
/// "zima1003.qvm".
std::string InstallmentName(std::string_view base, int number, std::string_view extension);

/// A path with another extension of three characters. Error 5 if the path is shorter.
std::string WithExtension(std::string path, std::string_view extension);

/// What the name of the chosen file and its folder say.
struct Installments {
  std::string base;  ///< Name without extension and number.
  int digits = 0;    ///< Digits among its last three characters; 3 only if they are a number.
  int chosen = 1;    ///< Number of the chosen installment.
  int last = 1;      ///< The highest number in the folder.

  [[nodiscard]] bool Numbered() const { return digits == 3; }
};

/// Finds the installments of the crossword with this file name among the files of its folder. A
/// file whose digits number nothing, as in "sport2024.qvm", is a crossword of its own. Error 5 for
/// a name without an extension.
Installments FindInstallments(std::string_view name, const std::vector<std::string>& folder);

/// Walks over the cells of an installment in the order of its file: row by row from the top, each
/// row from the left. Behind the last one it walks on into the next installment.
class CellWalk {
 public:
  /// Stands before the first cell.
  CellWalk(const Crossword& crossword, int installment);

  void Next();

  // The grid cell.
  [[nodiscard]] int x() const { return column_ + (beside_ ? (installment_ - 1) * width_ : 0); }
  [[nodiscard]] int y() const { return row_ + (beside_ ? 0 : (installment_ - 1) * height_); }
  /// Whether it is the last one of an installment.
  [[nodiscard]] bool AtLast() const { return column_ == width_ && row_ == height_; }
  /// The installment that owns it.
  [[nodiscard]] int installment() const { return installment_; }

 private:
  int width_;
  int height_;
  bool beside_;
  int installment_;
  int column_ = 0;
  int row_ = 1;
};

}  // namespace kalvon
