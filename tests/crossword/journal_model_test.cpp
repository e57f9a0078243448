// SPDX-License-Identifier: MIT
#include "crossword/journal_test.h"

#include <sys/stat.h>

#include <random>

namespace kalvon::testing {

/// What a journal promises, on whole pictures of the grid.
struct Model {
  explicit Model(const std::string& grid) : files(grid), grids({grid}) {}
  void Step(const std::string& grid, bool goes_on = false) {
    if (goes_on && open) return More(grid);
    open = true;
    const std::size_t steps = Waiting();
    const std::string before = grids[to - steps];
    for (std::size_t i = 0; steps > 0 && i < before.size(); ++i)
      if (before[i] != grids[to][i]) earlier[i] = grids[to][i];
    earlier_steps += steps;
    if (steps > 0 || laid > at) laid = no_position;
    from = no_position, to = 0;
    grids.resize(++at);
    grids.push_back(grid);
    if (laid == no_position && Laid() == grid) laid = at;
  }
  void More(const std::string& grid) {
    if (laid == at) laid = no_position;
    grids[at] = grid;
    open = grid != grids[at - 1];
    if (!open) grids.resize(at--);
    if (laid == no_position && Laid() == grid) laid = at;
  }
  void Save(const std::string& saved) {
    open = false;
    files = saved;
    if (files != grids[at]) return;
    from = std::max(from, at);
    if (Waiting() == 0) from = no_position, to = 0;
    if (laid <= at) earlier.clear(), earlier_steps = 0;
  }
  void Reopen(bool killed, const std::string& found) {
    std::string wanted = grids[at];
    for (std::size_t i = 0; i < found.size(); ++i)
      if (found[i] != files[i]) wanted[i] = found[i];
    files = found;
    const std::string& shown = killed ? wanted : files;
    open = false;
    std::size_t position = at;
    while (position > 0 && grids[position] != shown) --position;
    while (position < grids.size() && grids[position] != shown) ++position;
    if (position < grids.size()) {
      if (!killed && position < at) from = std::min(from, position), to = std::max(to, at);
      at = position;
      return;
    }
    const std::string now = grids[at];
    Step(now);
    open = false;
    grids = {files};
    laid = no_position;
    if (wanted != files) grids.push_back(wanted);
    at = killed ? grids.size() - 1 : 0;
    if (!killed && grids.size() > 1) from = 0, to = 1;
  }
  [[nodiscard]] std::size_t Waiting() const { return to - std::min(to, std::max(from, at)); }
  [[nodiscard]] std::string Laid() const {
    std::string grid = grids[at];
    for (const auto& [i, letter] : earlier) grid[i] = letter;
    return grid;
  }

  std::string files;
  std::vector<std::string> grids;
  std::size_t at = 0;
  std::size_t from = no_position, to = 0, laid = no_position;
  std::map<std::size_t, char> earlier;
  std::size_t earlier_steps = 0;
  bool open = false;  ///< More may join the last step.
};

TEST_F(JournalTest, AgreesWithAPlainModelThroughKillsAndEnds) {
  std::mt19937 random(7);
  const auto any = [&](int count) { return static_cast<int>(random() % unsigned(count)); };
  Open();
  Model model(Shown(crossword));
  const auto compare = [&](int action) {
    SCOPED_TRACE(action);
    ASSERT_EQ(Shown(crossword), model.grids[model.at]);
    ASSERT_EQ(journal->IsModified(), model.grids[model.at] != model.files);
    ASSERT_EQ(journal->Waiting(), model.Waiting());
    ASSERT_EQ(journal->EarlierSteps(), model.earlier_steps);
    Crossword laid = crossword;
    Apply(laid, journal->EarlierWork());
    ASSERT_EQ(Shown(laid), model.Laid());
  };
  int compacted = 0;
  for (int action = 0; action < 1200 && !HasFatalFailure(); ++action) {
    switch ("sssmmuuurrrlwo"[any(14)]) {
      case 's':
        Make({{{1 + any(3), 1 + any(2)}, any(3) == 0 ? "" : "A"}, {{1 + any(3), 3}, "B"}});
        if (Shown(crossword) != model.grids[model.at]) model.Step(Shown(crossword));
        break;
      case 'm':
        Make({{{1 + any(3), 1 + any(3)}, any(2) == 0 ? "" : "A"}}, true);
        if (Shown(crossword) != model.grids[model.at]) model.Step(Shown(crossword), true);
        break;
      case 'u':
        ASSERT_EQ(journal->Undo(crossword) != nullptr, model.at > 0);
        if (model.at > 0) --model.at, model.open = false;
        break;
      case 'r':
        ASSERT_EQ(journal->Redo(crossword) != nullptr, model.at + 1 < model.grids.size());
        if (model.at + 1 < model.grids.size()) ++model.at, model.open = false;
        break;
      case 'l':
        if (const Step earlier = journal->EarlierWork(); !earlier.changes.empty()) {
          model.Step(model.Laid());
          Apply(crossword, earlier);
          journal->Made(earlier);
        }
        break;
      case 'w': {
        // The second of the two files may be protected.
        const bool whole = any(2) == 0;
        chmod(folder.Host("zima1002.qvm").c_str(), whole ? 0644 : 0444);
        ASSERT_EQ(WriteCrossword(crossword).back().error == 0, whole);
        chmod(folder.Host("zima1002.qvm").c_str(), 0644);
        journal->Saved(crossword, whole ? std::vector{1, 2} : std::vector{1});
        model.Save(Shown(Read("zima1001.qvm")));
        break;
      }
      case 'o': {
        const bool killed = any(2) == 0;
        if (!killed) journal->End();
        journal.reset();
        // The kill may have come after the files were written.
        if (killed && any(4) == 0) WriteCrossword(crossword);
        if (any(4) == 0) ChangeFiles(1 + any(3), 3, static_cast<char>('A' + any(3)));
        model.Reopen(killed, Shown(Read("zima1001.qvm")));
        const std::size_t before = state.Get(JournalName()).size();
        Open();
        if (state.Get(JournalName()).size() < before) ++compacted;
      }
    }
    compare(action);
  }
  EXPECT_GT(compacted, 0);
  while (journal->Undo(crossword) != nullptr) ASSERT_EQ(Shown(crossword), model.grids[--model.at]);
  EXPECT_EQ(model.at, 0);
  while (journal->Redo(crossword) != nullptr) ASSERT_EQ(Shown(crossword), model.grids[++model.at]);
  EXPECT_EQ(model.at + 1, model.grids.size());
}

}  // namespace kalvon::testing
