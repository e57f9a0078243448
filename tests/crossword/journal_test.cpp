// SPDX-License-Identifier: MIT
#include "crossword/journal.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <QByteArray>
#include <csignal>
#include <optional>
#include <random>

#include "crossword/crossword_folder.h"
#include "crossword/journal_folder.h"
#include "files/state_folder.h"

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

TEST_F(JournalTest, IsGoodUpToTheFirstDamage) {
  Open();
  const std::string loaded = Shown(crossword);
  std::map<std::size_t, std::string> letters = {{0, loaded}};
  for (const char* letter : {"A", "", "B"}) {
    letters[state.Get(JournalName()).size()] = Shown(crossword);
    Make({{{1, 1}, letter}, {{3, 3}, letter}});
  }
  journal.reset();
  const std::string name = JournalName();
  const std::string bytes = state.Get(name);
  letters[bytes.size()] = Shown(crossword);
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    SCOPED_TRACE(place);
    std::string damaged = bytes;
    damaged[place] = static_cast<char>(damaged[place] ^ (1 << place % 8));
    for (const std::string& journal_bytes : {bytes.substr(0, place), damaged}) {
      state.Put(name, journal_bytes);
      Open();
      EXPECT_EQ(Shown(crossword), std::prev(letters.upper_bound(place))->second);
      Make(2, 1, "D");
      const std::string made = Shown(crossword);
      const bool kept = journal->NewFailure() == 0;
      Open();
      EXPECT_EQ(Shown(crossword), kept ? made : loaded);
    }
  }
}

TEST_F(JournalTest, TakesNoRecordThatCannotFollow) {
  Open();
  Make(1, 1, "A");
  const std::string shown = Shown(crossword);
  journal.reset();
  const std::string name = JournalName();
  const std::string bytes = state.Get(name);
  const auto step = [](GridCell cell, const char* before, const char* after) {
    return Record{.kind = RecordKind::step, .step = {.changes = {{cell, before, after}}}};
  };
  std::vector<Record> records = {
      step({1, 1}, "B", "C"),  step({4, 1}, "", "B"),         step({0, 1}, "", "B"),
      step({1, 5}, "", "B"),   step({1, -1}, "", "B"),        step({2, 2}, "", "B"),
      step({2, 2}, "$", "B"),  step({2, 1}, "", "$"),         step({2, 1}, "", "\r\nB"),
      {.kind = RecordKind{0}}, {.kind = RecordKind::forward}, {.kind = RecordKind{77}},
  };
  Record wrong_kind = step({2, 1}, "", "B");
  wrong_kind.step.kind = StepKind{99};
  Record wrong_place = step({2, 1}, "", "B");
  wrong_place.step.word.direction = 3;
  Record beyond{.kind = RecordKind::earlier, .waiting = {.from = 0, .to = 9}};
  Record saved = step({1, 5}, "", "B");
  saved.kind = RecordKind::saved;
  Record undone = step({9, 9}, "", "B");
  undone.kind = RecordKind::undone_step;
  records.insert(records.end(), {wrong_kind, wrong_place, beyond, saved, undone});
  for (std::size_t row = 0; row < records.size(); ++row) {
    SCOPED_TRACE(row);
    state.Put(name, bytes + Encode(records[row]) + Encode(step({2, 1}, "", "E")));
    Open();
    EXPECT_EQ(Shown(crossword), shown);
    EXPECT_EQ(state.Get(name).substr(0, bytes.size()), bytes);
    EXPECT_EQ(journal->Redo(crossword), nullptr);
    EXPECT_NE(journal->Undo(crossword), nullptr);
  }
  Record twice = step({1, 1}, "A", "");
  twice.step.changes.push_back(twice.step.changes.front());
  state.Put(name, bytes + Encode(twice));
  Open();
  EXPECT_NE(journal->Undo(crossword), nullptr);
  EXPECT_EQ(Shown(crossword), shown);
}

TEST_F(JournalTest, BelongsToContentAndPlace) {
  const auto open = [&](const std::string& name) {
    Open(name);
    return Shown(crossword);
  };
  const std::string plain = Qvm({"MIR"});
  Put({{"a.qvm", plain}});
  open("a.qvm");
  Make(2, 1, "B");
  EXPECT_EQ(open("A.QVM"), ".B.");
  Put({{"copy.qvm", plain}});
  EXPECT_EQ(open("copy.qvm"), "...");
  Make(3, 1, "C");
  journal.reset();
  std::filesystem::rename(folder.Host("a.qvm"), folder.Host("moved.qvm"));
  Put({{"a.qvm", Qvm({"MIK"})}});
  EXPECT_EQ(open("a.qvm"), "...");
  EXPECT_EQ(open("moved.qvm"), ".B.");
  EXPECT_EQ(open("copy.qvm"), "..C");
  std::filesystem::create_symlink(folder.Host("moved.qvm"), folder.Host("link.qvm"));
  EXPECT_EQ(open("link.qvm"), ".B.");
  EXPECT_EQ(Journals().size(), 3);
  for (const auto& path : Journals())
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0600));
  EXPECT_EQ(std::filesystem::status(state.Host("kalvon")).permissions(),
            std::filesystem::perms(0700));
}

TEST_F(JournalTest, DoesAllInMemoryWhenItCannotBeKept) {
  Open();
  Crossword second = Read("zima1001.qvm");
  Journal without(second, state.Host("kalvon"));
  EXPECT_EQ(without.NewFailure(), files::error::permission_denied);
  state.Put("file", "");
  state.Put(JournalName(), "something else");
  for (const auto& [where, error] : {std::pair<std::string, int>{"", files::error::path_not_found},
                                     {state.Host("file"), files::error::path_not_found},
                                     {state.Host("kalvon"), files::error::path_file_access}}) {
    journal.emplace(crossword, where);
    EXPECT_EQ(journal->NewFailure(), error) << where;
    Make(1, 1, "A");
    EXPECT_NE(journal->Undo(crossword), nullptr);
    EXPECT_FALSE(journal->IsModified());
    EXPECT_EQ(journal->NewFailure(), 0);
  }
  EXPECT_EQ(state.Get(JournalName()), "something else");
}

TEST_F(JournalTest, GoesOnWhereAFullDiskHasStoppedIt) {
  Open();
  ASSERT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  rlimit full = old;
  full.rlim_cur = state.Get(JournalName()).size() + 5;
  setrlimit(RLIMIT_FSIZE, &full);
  Make(1, 1, "A");
  Make(2, 1, "B");
  setrlimit(RLIMIT_FSIZE, &old);
  EXPECT_EQ(journal->NewFailure(), files::error::disk_full);
  EXPECT_EQ(journal->NewFailure(), 0);
  journal->Spend(60);
  const std::string shown = Shown(crossword);
  Open();
  EXPECT_EQ(Shown(crossword), shown);
  EXPECT_EQ(journal->PutBack(), 2);
  EXPECT_EQ(journal->Spent(), 60);
  EXPECT_EQ(journal->Steps().LastMade()->word, (WordPlace{{3, 1}, 2}));
  EXPECT_EQ(journal->Steps().LastMade()->kind, StepKind::word_solved);
}

TEST_F(JournalTest, ForgetsAfterAYear) {
  Open();
  Make(1, 1, "A");
  End();
  Open();
  Make(2, 1, "B");
  End();
  Open("zima1001.qvm", 764 * day);
  EXPECT_EQ(journal->EarlierSteps(), 1);
  End();
  Open("zima1001.qvm", 766 * day);
  EXPECT_EQ(journal->EarlierSteps(), 0);

  const auto now = static_cast<std::uint64_t>(std::time(nullptr));
  RemoveOldJournals(state.Host("kalvon"), now + 366 * day);
  EXPECT_EQ(Journals().size(), 1) << "it is open";
  journal.reset();
  RemoveOldJournals(state.Host("kalvon"), now + 364 * day);
  EXPECT_EQ(Journals().size(), 1);
  RemoveOldJournals(state.Host("kalvon"), now + 366 * day);
  EXPECT_EQ(Journals().size(), 0);

  for (const auto& [name, age] : {std::pair{"old", 3}, {"older", 4}, {"new", 1}, {"recent", 2}}) {
    const std::string path = state.Host("kalvon/") + name + ".journal";
    std::ofstream(path).close();
    std::filesystem::resize_file(path, std::uintmax_t{30} * 1024 * 1024);
    std::filesystem::last_write_time(
        path, std::filesystem::file_time_type::clock::now() - std::chrono::hours(age));
  }
  RemoveOldJournals(state.Host("kalvon"), now);
  EXPECT_EQ(Journals().size(), 2);
  for (const auto& path : Journals()) EXPECT_TRUE(path.stem() == "new" || path.stem() == "recent");
}

TEST(StateFolder, IsTheUsersOwn) {
  const QByteArray old_state = qgetenv("XDG_STATE_HOME");
  const QByteArray old_home = qgetenv("HOME");
  for (const auto& [state, home, folder] :
       {std::array{"/s", "/h", "/s/kalvon"}, {"s", "/h", "/h/.local/state/kalvon"}, {"", "", ""}}) {
    qputenv("XDG_STATE_HOME", state);
    qputenv("HOME", home);
    EXPECT_EQ(files::StateFolder(), folder);
  }
  qputenv("XDG_STATE_HOME", old_state);
  qputenv("HOME", old_home);
}

TEST_F(JournalTest, AStepThatDoesNotFitStaysAsItIs) {
  Open();
  Make(1, 1, "M");
  for (const GridCell cell : {GridCell{0, 1}, {1, 0}, {4, 1}, {1, 5}})
    EXPECT_FALSE(Fits(crossword, {.changes = {{cell, "", "A"}}})) << cell.x << ' ' << cell.y;
  Enter(crossword, 1, 1, 'X');
  EXPECT_EQ(journal->Undo(crossword), nullptr);
  EXPECT_EQ(Shown(crossword)[0], 'X');
}

}  // namespace kalvon::testing
