// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/browser_host.h"
#include "files/folder_entries.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QUrl>
#include <cstdlib>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

/// A stand-in browser, registered as the default one in the home of the tests. It writes down what
/// it is started with, a line for each argument.
class BrowserHostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string script = folder_.Host("moj citac");
    folder_.Put("moj citac", "#!/bin/sh\nprintf '%s\\n' \"$@\" >>'" + folder_.Host("spisak") +
                                 "'\necho kraj >>'" + folder_.Host("spisak") + "'\n");
    fs::permissions(script, fs::perms::owner_all);
    Register('"' + script + "\" --novi %u");
  }

  void TearDown() override {
    fs::remove(Entry());
    fs::remove(Defaults());
  }

  static void Register(const std::string& command_line) {
    fs::create_directories(Entry().parent_path());
    fs::create_directories(Defaults().parent_path());
    std::ofstream(Entry()) << "[Desktop Entry]\nType=Application\nName=Citac\nExec=" << command_line
                           << "\nMimeType=x-scheme-handler/http;\n";
    std::ofstream(Defaults())
        << "[Default Applications]\nx-scheme-handler/http=moj-citac.desktop\n";
    // What was looked up before is forgotten a moment after the folders have changed.
    ASSERT_TRUE(QTest::qWaitFor([] { return Read(R"(ddeexec\Application)") == "moj-citac"; }));
  }

  static std::string Read(const std::string& key) {
    const auto value = CurrentBrowserHost().Read(R"(http\shell\open\)" + key);
    return value && value->type == 1 ? value->data : "";
  }

  /// The lines that the browser has written when it has ended `starts` times.
  std::vector<std::string> Lines(int starts) {
    std::vector<std::string> lines;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      lines.clear();
      std::ifstream file(folder_.Host("spisak"));
      for (std::string line; std::getline(file, line);) lines.push_back(line);
      return std::ranges::count(lines, "kraj") == starts;
    }));
    return lines;
  }

  static fs::path Entry() {
    return fs::path(std::getenv("XDG_DATA_HOME")) / "applications/moj-citac.desktop";
  }
  static fs::path Defaults() { return fs::path(std::getenv("XDG_CONFIG_HOME")) / "mimeapps.list"; }

  ScratchFolder folder_;
};

TEST_F(BrowserHostTest, ReadsTheDefaultBrowsersDesktopEntry) {
  EXPECT_EQ(Read("command"), '"' + folder_.Host("moj citac") + "\" --novi %u");
  EXPECT_EQ(Read(R"(ddeexec\Application)"), "moj-citac");
  EXPECT_NE(Read(R"(ddeexec\Topic)"), "");
  EXPECT_EQ(Read("ddeexec"), "");
}

TEST_F(BrowserHostTest, AnswersByItsNameAlone) {
  auto& host = CurrentBrowserHost();
  const std::string topic = "|" + Read(R"(ddeexec\Topic)");
  EXPECT_EQ(files::pass_over([&] { host.Connect("MOJ-CITAC" + topic); }), 0);
  for (const char* name : {"|", "NEMA|WWW_OpenURL", "MOJ-CITAC", "MOJ-CITAC|"})
    EXPECT_EQ(files::pass_over([&] { host.Connect(name); }), files::error::no_application_answered)
        << name;
}

TEST_F(BrowserHostTest, OpensEachPageOnceByItsRealPathAndStartsNothingElse) {
  const std::string names[] = {"obican.htm", "Razmak i VELIKA.htm", "čćšžđ ћ.htm", "a,,b%20#?.htm",
                               "\"$(touch x)`touch x`\";touch x;'.htm"};
  auto& host = CurrentBrowserHost();
  host.Connect("MOJ-CITAC|" + Read(R"(ddeexec\Topic)"));
  int opened = 0;
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    folder_.Put(name, "");
    host.Request(files::LowerCase(folder_.Logic(name)) + ",,-1");
    const std::vector<std::string> lines = Lines(++opened);
    ASSERT_EQ(lines.size(), 3U * static_cast<unsigned>(opened));
    const std::string& address = lines[lines.size() - 2];
    EXPECT_EQ(lines[lines.size() - 3], "--novi");
    EXPECT_TRUE(address.starts_with("file:///")) << address;
    EXPECT_TRUE(std::ranges::all_of(address, [](char c) { return c > ' ' && c < '\x7F'; }));
    EXPECT_EQ(QUrl::fromEncoded(QByteArray::fromStdString(address)).toLocalFile().toStdString(),
              folder_.Host(name));
  }
  const auto is_x = [](const auto& entry) { return entry.path().filename() == "x"; };
  EXPECT_TRUE(std::ranges::none_of(fs::directory_iterator(folder_.HostPath()), is_x));
  EXPECT_FALSE(fs::exists("x"));
}

TEST_F(BrowserHostTest, StartsAProgramWithoutAShell) {
  auto& host = CurrentBrowserHost();
  host.Start(Read("command") + " '$(touch x)' \"a b\"");
  EXPECT_EQ(Lines(1), (std::vector<std::string>{"--novi", "$(touch x)", "a b", "kraj"}));
  for (const char* command : {"", "%u", "\"", "nema-takvog-programa --novi"})
    EXPECT_EQ(files::pass_over([&] { host.Start(command); }), files::error::file_not_found)
        << command;
}

TEST_F(BrowserHostTest, ABrowserThatIsGoneRefuses) {
  auto& host = CurrentBrowserHost();
  host.Connect("MOJ-CITAC|" + Read(R"(ddeexec\Topic)"));
  fs::remove(folder_.Host("moj citac"));
  EXPECT_EQ(files::pass_over([&] { host.Request("about:blank,,-1"); }), files::error::link_refused);
}

}  // namespace
}  // namespace toolkit
