// SPDX-License-Identifier: MIT
#include "files/text_file.h"
#include "files/file_rewrite.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using files::FileRewrite;
using files::pass_over;
using files::TextReader;

class TextFileTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Host(const std::string& name) const { return folder_.Host(name); }
  [[nodiscard]] std::string Logic(const std::string& name) const { return folder_.Logic(name); }
  void Put(const std::string& name, const std::string& text) const { folder_.Put(name, text); }
  [[nodiscard]] std::string Get(const std::string& name) const { return folder_.Get(name); }
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.HostPath())) {
      names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
  }
  [[nodiscard]] mode_t Mode(const std::string& name) const {
    struct stat status {};
    return stat(Host(name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
  }
  [[nodiscard]] std::vector<std::string> Lines(const std::string& name) const {
    TextReader reader(Logic(name));
    std::vector<std::string> lines;
    while (!reader.AtEnd()) lines.push_back(reader.Line());
    return lines;
  }
  /// Rewrites zima.qvm with lines of one letter; the number of the error, if any.
  [[nodiscard]] int Rewrite(char letter, int lines = 1) const {
    return pass_over([&] {
      FileRewrite file(Logic("zima.qvm"), "zima.qvt");
      for (int i = 0; i < lines; ++i) file.PrintLine(std::string(100, letter));
      file.Commit();
    });
  }
  static std::string Written(char letter, int lines = 1) {
    std::string text;
    for (int i = 0; i < lines; ++i) text.append(100, letter).append("\r\n");
    return text;
  }

  ScratchFolder folder_;
};

/// Starts a process of its own for the action, whose result is the exit status.
template <typename Action>
pid_t Fork(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action());
  return child;
}

int ExitStatus(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(TextFileTest, DividesLinesAtCrLfOnly) {
  Put("a", "jedan\r\n\r\ndva\rtri\nčetiri\r\r\n\r\npet\r");
  EXPECT_EQ(Lines("a"), (std::vector<std::string>{"jedan", "", "dva\rtri\nčetiri\r", "", "pet\r"}));
  Put("prazna", "");
  EXPECT_EQ(Lines("prazna"), std::vector<std::string>{});
}

TEST_F(TextFileTest, ReadsLinesThatCrossItsBlocks) {
  for (const std::size_t length : {65534U, 65535U, 65536U, 131071U}) {
    Put("a", std::string(length, 'x') + "\r\nkraj");
    EXPECT_EQ(Lines("a"), (std::vector<std::string>{std::string(length, 'x'), "kraj"}));
  }
}

TEST_F(TextFileTest, EndsALoopThatPassesOverAnEndlessLine) {
  Put("a", "prvi\r\n" + std::string(std::size_t{17} << 20, 'x'));
  TextReader reader(Logic("a"));
  EXPECT_EQ(reader.Line(), "prvi");
  EXPECT_EQ(pass_over([&] { reader.Line(); }), 14);
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(pass_over([&] { reader.Line(); }), 62);
}

TEST_F(TextFileTest, OpensOnlyFiles) {
  ASSERT_EQ(mkfifo(Host("cev").c_str(), 0600), 0);
  fs::create_symlink("nema", Host("visi"));
  fs::create_directory(Host("fascikla"));
  EXPECT_EQ(pass_over([&] { TextReader reader(Logic("cev")); }), 75);
  EXPECT_EQ(pass_over([&] { TextReader reader(Logic("fascikla")); }), 75);
  EXPECT_EQ(pass_over([&] { TextReader reader("c:\\dev\\zero"); }), 75);
  EXPECT_EQ(pass_over([&] { TextReader reader(Logic("visi")); }), 53);
  EXPECT_EQ(pass_over([&] { TextReader reader(Logic("nema")); }), 53);
}

TEST_F(TextFileTest, KeepsNamePermissionsAndLinksOfWhatItRewrites) {
  fs::create_directory(Host("prava"));
  Put("prava/Zima \xFF.QVM", "staro");
  ASSERT_EQ(chmod(Host("prava/Zima \xFF.QVM").c_str(), 0620), 0);
  fs::create_symlink("prava/Zima \xFF.QVM", Host("srednja"));
  fs::create_symlink("srednja", Host("Zima.qvm"));

  ASSERT_EQ(Rewrite('n'), 0);
  EXPECT_EQ(Get("prava/Zima \xFF.QVM"), Written('n'));
  EXPECT_EQ(Mode("prava/Zima \xFF.QVM"), 0620U);
  EXPECT_TRUE(fs::is_symlink(Host("Zima.qvm")) && fs::is_symlink(Host("srednja")));
  EXPECT_EQ(Names(), (std::vector<std::string>{"Zima.qvm", "prava", "srednja"}));
  EXPECT_EQ(std::distance(fs::directory_iterator(Host("prava")), {}), 1);
}

TEST_F(TextFileTest, CreatesANewFileForEverybodyWhomTheUserAdmits) {
  const mode_t mask = umask(027);
  EXPECT_EQ(Rewrite('n'), 0);
  umask(mask);
  EXPECT_EQ(Mode("zima.qvm"), 0640U);
}

TEST_F(TextFileTest, KeepsTheOwnerButNeverItsPrivileges) {
  if (geteuid() != 0) GTEST_SKIP() << "only the administrator can give a file away";
  Put("zima.qvm", "staro");
  ASSERT_EQ(chown(Host("zima.qvm").c_str(), 1234, 2345), 0);
  EXPECT_EQ(Rewrite('a'), 0);
  struct stat status {};
  ASSERT_EQ(stat(Host("zima.qvm").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 1234U);
  EXPECT_EQ(status.st_gid, 2345U);

  ASSERT_EQ(chmod(folder_.HostPath().c_str(), 0777), 0);
  ASSERT_EQ(chmod(Host("zima.qvm").c_str(), 06776), 0);
  EXPECT_EQ(ExitStatus(Fork([&] { return setuid(4321) != 0 ? -1 : Rewrite('b'); })), 0);
  EXPECT_EQ(Get("zima.qvm"), Written('b'));
  EXPECT_EQ(Mode("zima.qvm"), 0766U);
}

TEST_F(TextFileTest, LeavesAProtectedFileAlone) {
  Put("zima.qvm", "staro");
  ASSERT_EQ(chmod(Host("zima.qvm").c_str(), 0444), 0);
  EXPECT_EQ(Rewrite('n'), 70);
  EXPECT_EQ(Get("zima.qvm"), "staro");
  EXPECT_EQ(Names(), std::vector<std::string>{"zima.qvm"});
}

TEST_F(TextFileTest, LeavesNothingBehindWhenItIsGivenUp) {
  Put("zima.qvm", "staro");
  FileRewrite(Logic("zima.qvm"), "zima.qvt").PrintLine("novo");
  EXPECT_EQ(Get("zima.qvm"), "staro");
  EXPECT_EQ(Names(), std::vector<std::string>{"zima.qvm"});
}

TEST_F(TextFileTest, ThrowsAwayWhatLiesInThePlaceOfTheTemporaryFile) {
  Put("tuđa", "tuđe");
  Put("zima.qvm", "staro");
  const std::vector<std::string> left{"tuđa", "zima.qvm"};

  Put("zima.qvt", std::string(300, 'o'));
  EXPECT_EQ(Rewrite('a'), 0);
  EXPECT_EQ(Get("zima.qvm"), Written('a'));
  fs::create_symlink("tuđa", Host("zima.qvt"));
  EXPECT_EQ(Rewrite('b'), 0);
  fs::create_hard_link(Host("tuđa"), Host("zima.qvt"));
  EXPECT_EQ(Rewrite('c'), 0);
  fs::create_hard_link(Host("zima.qvm"), Host("zima.qvt"));
  EXPECT_EQ(Rewrite('d'), 0);
  EXPECT_EQ(Get("zima.qvm"), Written('d'));
  EXPECT_EQ(Get("tuđa"), "tuđe");
  EXPECT_EQ(Names(), left);

  fs::create_directory(Host("zima.qvt"));
  EXPECT_EQ(Rewrite('e'), 75);
  fs::remove(Host("zima.qvt"));
  EXPECT_EQ(pass_over([&] { FileRewrite(Logic("zima.qvm"), "zima.qvm"); }), 75);
  EXPECT_EQ(pass_over([&] { FileRewrite(Logic("zima.qvm"), "..\\zima.qvt"); }), 75);
  EXPECT_EQ(Get("zima.qvm"), Written('d'));
  EXPECT_EQ(Names(), left);
}

TEST_F(TextFileTest, KeepsTheOldFileOnAFullDisk) {
  Put("zima.qvm", "staro");
  // A limit on the size of files meets the same code as a full disk does.
  const pid_t child = Fork([&] {
    const rlimit limit{100'000, 100'000};
    setrlimit(RLIMIT_FSIZE, &limit);
    return pass_over([&] {
      FileRewrite file(Logic("zima.qvm"), "zima.qvt");
      for (int i = 0; i < 2000; ++i) pass_over([&] { file.PrintLine(std::string(100, 'n')); });
      file.Commit();
    });
  });
  EXPECT_EQ(ExitStatus(child), 61);
  EXPECT_EQ(Get("zima.qvm"), "staro");
  EXPECT_EQ(Names(), std::vector<std::string>{"zima.qvm"});
}

TEST_F(TextFileTest, HoldsAWholeFileWheneverTheProgramDies) {
  constexpr int lines = 2000;
  Put("zima.qvm", Written('a', lines));
  for (int round = 0; round < 20; ++round) {
    const pid_t child = Fork([&] {
      for (char letter = 'b';; letter = letter == 'b' ? 'c' : 'b') {
        if (Rewrite(letter, lines) != 0) return 1;
      }
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(3 + 2 * round));
    kill(child, SIGKILL);
    ASSERT_EQ(ExitStatus(child), -1) << "a rewrite failed";
    const std::string text = Get("zima.qvm");
    ASSERT_FALSE(text.empty());
    ASSERT_EQ(text, Written(text.front(), lines));
  }
  EXPECT_EQ(Rewrite('d'), 0);
  EXPECT_EQ(Names(), std::vector<std::string>{"zima.qvm"});
}

TEST_F(TextFileTest, LetsProgramsThatSaveAtOnceTakeTurns) {
  constexpr int lines = 1500;
  Put("zima.qvm", Written('a', lines));
  std::vector<pid_t> children;
  for (const char letter : {'b', 'c', 'd'}) {
    children.push_back(Fork([&] {
      for (int i = 0; i < 25; ++i) {
        if (const int failure = Rewrite(letter, lines); failure != 0) return failure;
        const std::string text = Get("zima.qvm");
        if (text.empty() || text != Written(text.front(), lines)) return 99;
      }
      return 0;
    }));
  }
  for (const pid_t child : children) EXPECT_EQ(ExitStatus(child), 0);
  EXPECT_EQ(Names(), std::vector<std::string>{"zima.qvm"});
}

TEST_F(TextFileTest, DeletesFiles) {
  Put("Jedan.tmp", "1");
  Put("dva.tmp", "2");
  files::Kill(Logic("DVA.TMP"));
  EXPECT_EQ(Names(), std::vector<std::string>{"Jedan.tmp"});
  EXPECT_EQ(pass_over([&] { files::Kill(Logic("dva.tmp")); }), 53);
}

}  // namespace
