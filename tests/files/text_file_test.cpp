// SPDX-License-Identifier: MIT
#include "files/text_file.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <functional>
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
  [[nodiscard]] Names AllNames() const {
    Names names;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.Host()))
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

pid_t Fork(const std::function<int()>& action) {
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

TEST_F(TextFileTest, DividesLinesAsTheFirstOneEnds) {
  folder_.Put("zima.qvm", "jedan\r\n\r\ndva\rtri\nčetiri\r\r\n\r\npet\r");
  TextReader reader(zima_);
  for (const char* line : {"jedan", "", "dva\rtri\nčetiri\r", "", "pet\r"})
    EXPECT_EQ(reader.Line(), line);
  folder_.Put("zima.qvm", "\njedan\r\r\ndva\rtri\n\nčetiri");
  TextReader with_lf(zima_, files::as_the_first_line);
  for (const char* line : {"", "jedan", "dva\rtri", "", "četiri"}) EXPECT_EQ(with_lf.Line(), line);
  // Each byte of a line comes to lie at the end of a block that is read.
  folder_.Put("zima.qvm", Written('x', 70'000));
  TextReader longer(zima_);
  int whole = 0;
  while (!longer.AtEnd()) whole += longer.Line() == std::string(line_length, 'x') ? 1 : 0;
  EXPECT_EQ(whole, 70'000);
}

constexpr auto list_name = "system.posix_acl_access";
// The owner, user 7, the group and the mask may write, the others read.
const std::string access_list(
    "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\7\0\0\0\4\0\6\0\xFF\xFF\xFF\xFF"
    "\x10\0\6\0\xFF\xFF\xFF\xFF\x20\0\4\0\xFF\xFF\xFF\xFF",
    44);

bool SetList(const std::string& path, const char* name = list_name) {
  return setxattr(path.c_str(), name, access_list.data(), access_list.size(), 0) == 0;
}

std::string ListOf(const std::string& path) {
  std::string list(access_list.size(), ' ');
  return getxattr(path.c_str(), list_name, list.data(), list.size()) < 0 ? "" : list;
}

TEST_F(TextFileTest, KeepsNamePermissionsAndLinksOfWhatItRewrites) {
  fs::create_directory(folder_.Host("prava"));
  const std::string file = folder_.Host("prava/Leto.QVM");
  folder_.Put("prava/Leto.QVM", "staro");
  ASSERT_EQ(chmod(file.c_str(), 0620), 0);
  SetList(folder_.Host("prava"), "system.posix_acl_default");
  fs::create_symlink("prava/Leto.QVM", folder_.Host("srednja"));
  fs::create_symlink("srednja", folder_.Host("Zima.qvm"));
  ASSERT_EQ(Rewrite(zima_, 'n'), 0);
  EXPECT_EQ(folder_.Get("prava/Leto.QVM"), Written('n'));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms{0620});
  EXPECT_EQ(ListOf(file), "") << "the folder's list is for new files";
  EXPECT_EQ(SetList(file) && Rewrite(zima_, 'n') == 0 ? ListOf(file) : access_list, access_list);
  EXPECT_TRUE(fs::is_symlink(folder_.Host("Zima.qvm")) && fs::is_symlink(folder_.Host("srednja")));
  EXPECT_EQ(AllNames(), (Names{"prava", "Leto.QVM", "srednja", "Zima.qvm"}));
}

TEST_F(TextFileTest, WidensNoRightsOfAnOwnerWhoCannotBeKept) {
  if (geteuid() != 0) GTEST_SKIP() << "only the administrator can give a file away";
  // The folders above may be closed to the user; the one in which his program stands is not.
  ASSERT_EQ(chmod(folder_.Host().c_str(), 0777), 0);
  std::string narrowed = access_list;
  narrowed[22] = narrowed[38];
  for (const auto& [with_list, mode, list] :
       {std::tuple{false, 0766U, std::string()}, {true, 0664U, narrowed}}) {
    folder_.Put("zima.qvm", "staro");
    folder_.Put("zima.qvt", "");  // It stands open, and is another user's.
    fs::permissions(folder_.Host("zima.qvt"), fs::perms{0666});
    ASSERT_EQ(chown(host_zima_.c_str(), 8, 9) + chmod(host_zima_.c_str(), 06776), 0);
    if (with_list && !SetList(host_zima_)) continue;
    EXPECT_EQ(ExitStatus(Fork([&] {
                const bool ready = chdir(folder_.Host().c_str()) == 0 &&
                                   setgroups(0, nullptr) + setgid(7) + setuid(7) == 0;
                return ready ? Rewrite("c:\\proc\\self\\cwd\\zima.qvm", 'n') : 99;
              })),
              0);
    struct stat status {};
    ASSERT_EQ(stat(host_zima_.c_str(), &status), 0);
    EXPECT_EQ((std::vector{status.st_uid, status.st_gid, status.st_mode & 07777}),
              (std::vector{7U, 7U, mode}));
    EXPECT_EQ(ListOf(host_zima_), list);
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
  EXPECT_EQ(folder_.Get("zima.qvm"), "staro");
  EXPECT_EQ(AllNames(), Names{"zima.qvm"});
}

TEST_F(TextFileTest, ThrowsAwayWhatLiesInThePlaceOfTheTemporaryFile) {
  const std::string temporary = folder_.Host("zima.qvt");
  folder_.Put("tuđa", "tuđe");
  folder_.Put("zima.qvt", std::string(300, 'o'));
  EXPECT_EQ(Rewrite(zima_, 'a'), 0);
  EXPECT_EQ(folder_.Get("zima.qvm"), Written('a'));
  fs::create_symlink("tuđa", temporary);
  EXPECT_EQ(Rewrite(zima_, 'b'), 0);
  for (const char* name : {"tuđa", "zima.qvm"}) {
    fs::create_hard_link(folder_.Host(name), temporary);
    EXPECT_EQ(Rewrite(zima_, 'c'), 0);
  }
  EXPECT_EQ(AllNames(), (Names{"tuđa", "zima.qvm"}));
  ASSERT_EQ(mkfifo(temporary.c_str(), 0666), 0);
  folder_.Put("zima.qv1", "moje");
  EXPECT_EQ(Rewrite(zima_, 'c'), 0);
  EXPECT_EQ(AllNames(), (Names{"tuđa", "zima.qv1", "zima.qvm", "zima.qvt"}));
  EXPECT_TRUE(fs::remove(temporary));
  FileRewrite file(zima_, "zima.qvt", files::Deadline());
  EXPECT_EQ(pass_over([&] { FileRewrite(zima_, "zima.qvt", files::Deadline()); }), 70);
  fs::rename(folder_.Host("tuđa"), temporary);
  EXPECT_EQ(pass_over([&] { file.Commit(); }), 75) << "what bears the name now is another's";
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
    const auto save_on = [&](char letter) {
      while (Rewrite(zima_, letter, lines) == 0 && whole()) continue;
      return 1;
    };
    const pid_t programs[] = {Fork([&] { return save_on('b'); }),
                              Fork([&] { return save_on('c'); })};
    std::this_thread::sleep_for(std::chrono::milliseconds(7 * round));
    for (const pid_t program : programs) {
      kill(program, SIGKILL);
      EXPECT_EQ(ExitStatus(program), -1) << "a rewrite failed";
    }
    ASSERT_TRUE(whole());
  }
  EXPECT_EQ(Rewrite(zima_, 'e'), 0);
  EXPECT_EQ(AllNames(), Names{"zima.qvm"});
}

}  // namespace
