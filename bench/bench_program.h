// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

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

/// The largest crossword that there can be: 16383 cells.
inline constexpr FileShape largest{.columns = 127, .rows = 129};

/// A temporary folder.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// The host path of a file in it.
  [[nodiscard]] std::string Path(const std::string& name = "") const;
  void Write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path path_;
};

/// Writes so many installments of the crossword "zima1", of 4 by 4 cells, side by side. Returns
/// their host paths.
std::vector<std::string> WriteInstallments(const ScratchFolder& folder, int count);

/// The program, started in a temporary folder that goes with it.
class BenchProgram {
 public:
  BenchProgram();
  ~BenchProgram();
  BenchProgram(const BenchProgram&) = delete;
  BenchProgram& operator=(const BenchProgram&) = delete;

  [[nodiscard]] const ScratchFolder& folder() const { return folder_; }
  /// Opens the dialog on the file.
  void Choose(const std::string& name) const;
  /// Goes on with the chosen file.
  static void Load();
  /// Gives the main window the size that it has by a zoom.
  static void Zoom(double factor);
  /// Paints what has changed.
  static void Paint();
  /// Presses a key, of the host's numbers, in the first letter box, until the screen is painted.
  static void Press(int key, bool with_control = false);

 private:
  ScratchFolder folder_;
};

}  // namespace kalvon::bench
