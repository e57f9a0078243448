// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/browser_host.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QUrl>

#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace toolkit {

namespace fs = std::filesystem;
using files::pass_over;

/// A stand-in for the default browser, which writes down each argument that it is started with,
/// and what it gets of the program's own settings.
class BrowserHostTest : public ::testing::Test {
 protected:
  BrowserHostTest() {
    folder_.Put("moj citac", "#!/bin/sh\nprintf '%s\\n' \"$@\" $QT_XCB_GL_INTEGRATION kraj >>'" +
                                 folder_.Host("spisak'"));
    fs::permissions(folder_.Host("moj citac"), fs::perms::owner_all);
    fs::create_directories(entry_.parent_path());
    fs::create_directories(defaults_.parent_path());
    std::ofstream(entry_) << "[Desktop Entry]\nType=Application\nName=Citac\nExec=" << command_
                          << " %u\nMimeType=x-scheme-handler/http;\n";
    std::ofstream(defaults_) << "[Default Applications]\nx-scheme-handler/http=moj-citac.desktop\n";
    // What was looked up before is forgotten a moment after the folders have changed.
    const std::string key = R"(http\shell\open\command)";
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return host_.Read(key).value_or(RegistryValue()).data == command_ + " %u"; }));
  }
  ~BrowserHostTest() override { fs::remove(entry_), fs::remove(defaults_); }

  /// What the browser was started with, once it has written that down.
  std::string Arguments() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return folder_.Get("spisak").ends_with("kraj\n"); }));
    fs::rename(folder_.Host("spisak"), folder_.Host("procitano"));
    return folder_.Get("procitano");
  }

  const fs::path entry_ = fs::path(getenv("XDG_DATA_HOME")) / "applications/moj-citac.desktop";
  const fs::path defaults_ = fs::path(getenv("XDG_CONFIG_HOME")) / "mimeapps.list";
  ScratchFolder folder_;
  const std::string command_ = '"' + folder_.Host("moj citac") + "\" --novi";
  BrowserHost& host_ = CurrentBrowserHost();
};

TEST_F(BrowserHostTest, OpensAPageByItsRealPathAndNeedsNoShell) {
  for (const char* name : {"|", "NEMA|WWW_OpenURL", "MOJ-CITAC", "MOJ-CITAC|"})
    EXPECT_EQ(pass_over([&] { host_.Connect(name); }), files::error::no_application_answered);
  host_.Connect("MOJ-CITAC|WWW_OpenURL");
  for (const char* name : {"Razmak i VELIKA.htm", "čćšžđ ћ.htm", "a,,b%20#?.htm",
                           "\"$(touch x)`touch x`\";touch x;'.htm"}) {
    folder_.Put(name, "");
    host_.Request(files::LowerCase(folder_.Logic(name)) + ",,-1");
    const QUrl page = QUrl::fromLocalFile(QString::fromStdString(folder_.Host(name)));
    EXPECT_EQ(Arguments(), "--novi\n" + page.toEncoded().toStdString() + "\nkraj\n");
  }
  host_.Start(command_ + " 100%% %i '$(touch x)' \"a b\"");
  EXPECT_EQ(Arguments(), "--novi\n100%\n$(touch x)\na b\nkraj\n");
  EXPECT_FALSE(fs::exists(folder_.Host("x")) || fs::exists("x"));
  for (const char* command : {"", "%u", "\"", "nema-takvog-programa --novi"})
    EXPECT_EQ(pass_over([&] { host_.Start(command); }), files::error::file_not_found) << command;
}

}  // namespace toolkit
