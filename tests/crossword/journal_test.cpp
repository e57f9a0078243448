// SPDX-License-Identifier: MIT
#include "crossword/journal_test.h"

#include <sys/resource.h>

#include <QByteArray>
#include <csignal>

#include "crossword/journal_folder.h"
#include "files/state_folder.h"

namespace kalvon::testing {

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
