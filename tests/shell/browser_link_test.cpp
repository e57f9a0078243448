// SPDX-License-Identifier: MIT
#include "shell/browser_link.h"
#include "files/folder_entries.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "files/host_paths.h"
#include "shell/toolkit/windows/application.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class BrowserLinkTest : public ProgramTest {
 protected:
  /// Presses the help button, and returns the texts of the messages that came up.
  std::string PressHelp() {
    std::string messages;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&messages] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      messages += box->text().toStdString();
      box->accept();
    });
    answers.start(1);
    ClickButton("cmd_glavni(6)");
    return messages;
  }
};

TEST_F(BrowserLinkTest, ARunningBrowserIsAskedForTheManualAndNotStarted) {
  EXPECT_EQ(PressHelp(), "");
  const std::string folder = files::LowerCase(toolkit::App::Path());
  EXPECT_EQ(browser().calls,
            (std::vector<std::string>{"connect CITAC|WWW_OpenURL",
                                      "request " + folder + "\\uputstvo\\pocetak.htm,,-1"}));
}

TEST_F(BrowserLinkTest, StartsTheBrowserOnceAndTriesSixTimesMore) {
  constexpr int none = files::error::no_application_answered;
  struct Conversation {
    const char* name;
    std::vector<int> errors;
    std::string calls;  // The first letters of connect, request, start.
  };
  const Conversation conversations[] = {
      {"answers at the last try", {none, 0, none, none, none, none, none, 0}, "csccccccr"},
      {"never answers", {none, 0, none}, "cscccccc"},
      {"cannot be started", {none, files::error::file_not_found}, "cs"},
      {"refuses", {0, files::error::link_refused}, "cr"},
      {"has its tries counted over both steps", {none, 0, none, 0, none}, "csccrrrrr"},
  };
  for (const auto& [name, errors, calls] : conversations) {
    SCOPED_TRACE(name);
    browser() = {.errors = errors};
    EXPECT_EQ(PressHelp(), errors.back() == 0 ? "" : "Nije ostvarena veza sa Browser-om");
    std::string letters;
    for (const std::string& call : browser().calls) letters += call.front();
    EXPECT_EQ(letters, calls);
    EXPECT_TRUE(calls[1] == 'r' || browser().calls.at(1) == "start citac --novi");
  }
}

TEST_F(BrowserLinkTest, TheRegistryGivesShortPlainStringsOnly) {
  const std::string longest(255, 'a');
  browser().registry = {{"kratka", {1, "vrednost"}},
                        {"najduza", {1, longest}},
                        {"preduga", {1, longest + 'a'}},
                        {"putanja", {2, "%put%"}}};
  std::uint32_t root = 0x80000000;
  EXPECT_EQ(citaj_registar(root, "kratka", ""), "vrednost");
  EXPECT_EQ(citaj_registar(root, "najduza", ""), longest);
  EXPECT_EQ(citaj_registar(root, "preduga", ""), "");
  EXPECT_EQ(citaj_registar(root, "putanja", ""), "");
  EXPECT_EQ(citaj_registar(root, "kratka", "ime"), "");
  root = 0x80000001;
  EXPECT_EQ(citaj_registar(root, "kratka", ""), "");
  PressHelp();
  EXPECT_EQ(browser().calls.front(), "connect |") << "there is no browser";
}

}  // namespace
}  // namespace kalvon::testing
