// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "crossword/cell.h"
#include "crossword/reading.h"
#include "crossword/writing.h"
#include "files/scratch_folder.h"
#include "support/crossword_text.h"

namespace kalvon::testing {

/// Crosswords in a folder of their own, read and written without a window.
class CrosswordFolder : public ::testing::Test {
 protected:
  using Files = std::map<std::string, std::string>;

  void Put(const Files& files) const {
    for (const auto& [name, bytes] : files) folder.Put(name, bytes);
  }

  [[nodiscard]] Files All() const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Host()))
      files[entry.path().filename()] = folder.Get(entry.path().filename());
    return files;
  }

  [[nodiscard]] Crossword Read(const std::string& name) const {
    return ReadCrossword(folder.Logic(name));
  }

  static void Enter(Crossword& crossword, int x, int y, char letter) {
    std::string& cell = crossword.ukr_polja.Mutable(x, y, 1);
    cell = WithUserLetter(cell, letter);
  }

  /// The solution letters of each row; "$" stands for a blocked cell, "." for an empty one.
  static std::vector<std::string> Grid(const Crossword& crossword) {
    std::vector<std::string> rows;
    for (int y = 1; y <= crossword.ukr_visina; ++y) {
      std::string& row = rows.emplace_back();
      for (int x = 1; x <= crossword.ukr_sirina; ++x) {
        const std::string& cell = crossword.ukr_polja(x, y, 1);
        row += cell.empty() ? '.' : cell.front();
      }
    }
    return rows;
  }

  ScratchFolder folder;
};

}  // namespace kalvon::testing
