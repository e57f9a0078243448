// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace kalvon::bench {

/// Shape of a crossword file.
struct FileShape {
  int columns = 0;
  int rows = 0;
  bool side_by_side = false;
};

/// A crossword file whose cells are all letters, filled by the user, with a word start in every
/// third cell, marks included.
std::string CrosswordFile(const FileShape& shape);

/// The program, started in a temporary folder that goes with it.
class BenchProgram {
 public:
  BenchProgram();
  ~BenchProgram();
  BenchProgram(const BenchProgram&) = delete;
  BenchProgram& operator=(const BenchProgram&) = delete;

  void Write(const std::string& name, const std::string& bytes) const;
  /// Opens the dialog on the file.
  void Choose(const std::string& name) const;
  /// Goes on with the chosen file.
  static void Load();

 private:
  std::filesystem::path folder_;
};

}  // namespace kalvon::bench
