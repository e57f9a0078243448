// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "crossword/crossword_folder.h"
#include "crossword/journal.h"

namespace kalvon::testing {

constexpr std::uint64_t day = 86400;

/// A crossword of two installments, with its journal. A journal that is not ended was killed.
class JournalTest : public CrosswordFolder {
 protected:
  JournalTest() {
    const CrosswordText text{.rows = {"MIR", "A#A"}, .letters = {"", "  X"}};
    Put({{"zima1001.qvm", Qvm(text)}, {"zima1002.qvm", Qvm({"KIT", "..."})}});
  }

  void Open(const std::string& name = "zima1001.qvm", std::uint64_t now = 400 * day) {
    journal.reset();
    crossword = Read(name);
    journal.emplace(crossword, state.Host("kalvon"), now);
  }
  void End() {
    journal->End();
    journal.reset();
  }
  void Make(const std::vector<std::pair<GridCell, std::string>>& letters, bool goes_on = false) {
    Step step{.kind = StepKind::word_solved, .word = {{3, 1}, 2}};
    for (const auto& [cell, letter] : letters) {
      const std::string plain = WithoutUserLetter(crossword.ukr_polja(cell.x, cell.y, 1));
      if (IsLetterCell(plain))
        ChangeCell(crossword, step, cell,
                   letter.empty() ? plain : WithUserLetter(plain, letter[0]));
    }
    journal->Made(step, goes_on);
  }
  void Make(int x, int y, const std::string& letter) { Make({{{x, y}, letter}}); }
  /// Another program saves a letter.
  void ChangeFiles(int x, int y, char letter) const {
    Crossword others = Read("zima1001.qvm");
    Enter(others, x, y, letter);
    WriteCrossword(others);
  }
  /// The user's letters row by row, "." for none, "#" for a blocked or empty cell.
  [[nodiscard]] static std::string Shown(const Crossword& crossword) {
    std::string shown;
    for (int y = 1; y <= crossword.ukr_visina; ++y) {
      for (int x = 1; x <= crossword.ukr_sirina; ++x) {
        const std::string& cell = crossword.ukr_polja(x, y, 1);
        shown += !IsLetterCell(cell) ? '#' : ShowsUserLetter(cell) ? cell[1] : '.';
      }
    }
    return shown;
  }
  [[nodiscard]] std::vector<std::filesystem::path> Journals() const {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(state.Host("kalvon")))
      paths.push_back(entry.path());
    return paths;
  }
  [[nodiscard]] std::string JournalName() const {
    return "kalvon/" + Journals().front().filename().string();
  }

  ScratchFolder state;
  Crossword crossword;
  std::optional<Journal> journal;
};

}  // namespace kalvon::testing
