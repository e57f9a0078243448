// SPDX-License-Identifier: MIT
#include "files/text_file.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <map>
#include <set>
#include <thread>

#include "files/file_rewrite.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using files::FileRewrite;
using files::pass_over;
using files::TextReader;
using Names = std::set<std::string>;

constexpr std::size_t line_length = 99;

class TextFileTest : public testing::Test {
 protected:
  [[nodiscard]] Names NamesIn(const std::string& folder) const {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder_.Host(folder)))
      names.insert(entry.path().filename());
    return names;
  }
  static std::string Written(char letter, int lines = 1) {
    std::string text;
    for (int i = 0; i < lines; ++i) text.append(line_length, letter).append("\r\n");
    return text;
  }
  /// Rewrites a file with lines of one letter; the number of the error, if any.
  static int Rewrite(const std::string& path, char letter, int lines = 1) {
    return pass_over([&] {
      FileRewrite file(path, "zima.qvt");
      for (int i = 0; i < lines; ++i)
        pass_over([&] { file.PrintLine(std::string(line_length, letter)); });
      file.Commit();
    });
  }

  ScratchFolder folder_;
  const std::string zima_ = folder_.Logic("zima.qvm");
  const std::string host_zima_ = folder_.Host("zima.qvm");
};

/// Starts a process of its own for the action, whose result is the exit status.
template <typename Action>
pid_t Fork(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action());
  return child;
}

/// -1 for a process that was killed.
int ExitStatus(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(TextFileTest, DividesLinesAtCrLfOnly) {
  const std::vector<std::string> lines = {"jedan", "", "dva\rtri\nčetiri\r", "", "pet\r"};
  folder_.Put("zima.qvm", "jedan\r\n\r\ndva\rtri\nčetiri\r\r\n\r\npet\r");
  TextReader reader(zima_);
  for (const std::string& line : lines) EXPECT_EQ(reader.Line(), line);
  EXPECT_TRUE(reader.AtEnd());

  // Each byte of a line comes to lie at the end of a block that is read.
  folder_.Put("zima.qvm", Written('x', 70'000));
  TextReader longer(zima_);
  int whole = 0;
  while (!longer.AtEnd()) whole += longer.Line() == std::string(line_length, 'x') ? 1 : 0;
  EXPECT_EQ(whole, 70'000);
}

TEST_F(TextFileTest, OpensOnlyFilesAndEndsALoopThatPassesOverAnEndlessLine) {
  for (const auto& [path, failure] :
       std::map<std::string, int>{{zima_, 53}, {folder_.Logic(), 75}, {"c:\\dev\\zero", 75}})
    EXPECT_EQ(pass_over([&] { TextReader reader(path); }), failure) << path;
  folder_.Put("zima.qvm", std::string(std::size_t{17} << 20, 'x'));
  TextReader reader(zima_);
  EXPECT_EQ(pass_over([&] { reader.Line(); }), 14);
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(pass_over([&] { reader.Line(); }), 62);
}

TEST_F(TextFileTest, KeepsNamePermissionsAndLinksOfWhatItRewrites) {
  fs::create_directory(folder_.Host("prava"));
  const std::string file = folder_.Host("prava/Leto.QVM");
  folder_.Put("prava/Leto.QVM", "staro");
  ASSERT_EQ(chmod(file.c_str(), 0620), 0);
  fs::create_symlink("prava/Leto.QVM", folder_.Host("srednja"));
  fs::create_symlink("srednja", folder_.Host("Zima.qvm"));
  ASSERT_EQ(Rewrite(zima_, 'n'), 0);
  EXPECT_EQ(folder_.Get("prava/Leto.QVM"), Written('n'));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms{0620});
  EXPECT_TRUE(fs::is_symlink(folder_.Host("Zima.qvm")) && fs::is_symlink(folder_.Host("srednja")));
  EXPECT_EQ(NamesIn("prava"), Names{"Leto.QVM"});
}

TEST_F(TextFileTest, KeepsTheOwnerWherePossibleAndWidensNoRights) {
  if (geteuid() != 0) GTEST_SKIP() << "only the administrator can give a file away";
  // The program's user and whether he is in the group 9, the old owner and mode, what comes of it.
  constexpr unsigned rows[][7] = {{0, 0, 8, 0620, 8, 9, 0620},
                                  {0, 0, 0, 0664, 0, 9, 0664},
                                  {7, 1, 8, 06776, 7, 9, 0776},
                                  {7, 0, 8, 06776, 7, 7, 0766}};
  ASSERT_EQ(chmod(folder_.Host().c_str(), 0777), 0);
  for (const auto& [user, groups, owner, mode, new_owner, new_group, new_mode] : rows) {
    folder_.Put("zima.qvm", "staro");
    ASSERT_EQ(chown(host_zima_.c_str(), owner, 9) + chmod(host_zima_.c_str(), mode), 0);
    // The folders above may be closed to the user; the one in which his program stands is not.
    EXPECT_EQ(ExitStatus(Fork([&, user = user, groups = groups] {
                constexpr gid_t group = 9;
                const bool ready = chdir(folder_.Host().c_str()) == 0 &&
                                   setgroups(groups, &group) + setgid(user) + setuid(user) == 0;
                return ready ? Rewrite("c:\\proc\\self\\cwd\\zima.qvm", 'n') : 99;
              })),
              0);
    struct stat status {};
    ASSERT_EQ(stat(host_zima_.c_str(), &status), 0);
    EXPECT_EQ((std::vector{status.st_uid, status.st_gid, status.st_mode & 07777}),
              (std::vector{new_owner, new_group, new_mode}));
  }
}

TEST_F(TextFileTest, LeavesTheOldFileAloneUntilTheNewOneIsWhole) {
  folder_.Put("zima.qvm", "staro");
  FileRewrite(zima_, "zima.qvt").PrintLine("novo");
  ASSERT_EQ(chmod(host_zima_.c_str(), 0444), 0);
  EXPECT_EQ(Rewrite(zima_, 'n'), 70);
  ASSERT_EQ(chmod(host_zima_.c_str(), 0644), 0);
  // A limit on the size of files meets the same code as a full disk does.
  EXPECT_EQ(ExitStatus(Fork([&] {
              const rlimit limit{100'000, 100'000};
              return setrlimit(RLIMIT_FSIZE, &limit) == 0 ? Rewrite(zima_, 'n', 2000) : 99;
            })),
            61);
  for (const char* temporary : {"zima.qvm", "..\\zima.qvt", "a/b", "..", ""})
    EXPECT_EQ(pass_over([&] { FileRewrite(zima_, temporary); }), 75) << temporary;
  EXPECT_EQ(folder_.Get("zima.qvm"), "staro");
  EXPECT_EQ(NamesIn(""), Names{"zima.qvm"});
}

TEST_F(TextFileTest, ThrowsAwayWhatLiesInThePlaceOfTheTemporaryFile) {
  const std::string temporary = folder_.Host("zima.qvt");
  folder_.Put("tuđa", "tuđe");
  folder_.Put("zima.qvt", std::string(300, 'o'));
  EXPECT_EQ(Rewrite(zima_, 'a'), 0);
  EXPECT_EQ(folder_.Get("zima.qvm"), Written('a'));
  fs::create_symlink("tuđa", temporary);
  EXPECT_EQ(Rewrite(zima_, 'b'), 0);
  folder_.Put("prazna", "");
  for (const char* name : {"tuđa", "prazna", "zima.qvm"}) {
    fs::create_hard_link(folder_.Host(name), temporary);
    EXPECT_EQ(Rewrite(zima_, 'c'), 0);
  }
  EXPECT_EQ(folder_.Get("prazna"), "");
  EXPECT_EQ(NamesIn(""), (Names{"prazna", "tuđa", "zima.qvm"}));
  {
    FileRewrite file(zima_, "zima.qvt");
    fs::rename(folder_.Host("tuđa"), temporary);
    EXPECT_EQ(pass_over([&] { file.Commit(); }), 75) << "what bears the name now is another's";
  }
  EXPECT_EQ(folder_.Get("zima.qvt"), "tuđe");
  EXPECT_EQ(folder_.Get("zima.qvm"), Written('c'));
}

TEST_F(TextFileTest, HoldsAWholeFileWhileProgramsSaveAtOnceAndDie) {
  constexpr int lines = 1500;
  const auto whole = [&] {
    const std::string text = folder_.Get("zima.qvm");
    return !text.empty() && text == Written(text.front(), lines);
  };
  ASSERT_EQ(Rewrite(zima_, 'a', lines), 0);
  for (int round = 1; round <= 12; ++round) {
    std::vector<pid_t> programs;
    for (const char letter : {'b', 'c', 'd'})
      programs.push_back(Fork([&] {
        while (Rewrite(zima_, letter, lines) == 0 && whole()) continue;
        return 1;
      }));
    std::this_thread::sleep_for(std::chrono::milliseconds(7 * round));
    for (const pid_t program : programs) {
      kill(program, SIGKILL);
      EXPECT_EQ(ExitStatus(program), -1) << "a rewrite failed";
    }
    ASSERT_TRUE(whole());
  }
  EXPECT_EQ(Rewrite(zima_, 'e'), 0);
  EXPECT_EQ(NamesIn(""), Names{"zima.qvm"});
}

}  // namespace
