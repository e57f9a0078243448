// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "files/folder_entries.h"
#include "shell/toolkit/windows/application.h"
#include "support/program_test.h"

namespace kalvon::testing {

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

TEST_F(BrowserLinkTest, StartsTheBrowserOnceAndTriesSixTimesMore) {
  std::map<char, std::string> calls = {{'c', "connect CITAC|WWW_OpenURL"},
                                       {'s', "start citac --novi"}};
  calls['r'] = "request " + files::LowerCase(toolkit::App::Path()) + "\\uputstvo\\pocetak.htm,,-1";
  constexpr int none = files::error::no_application_answered;
  const std::pair<std::string, std::vector<int>> conversations[] = {
      {"cr", {0}},
      {"csccccccr", {none, 0, none, none, none, none, none, 0}},
      {"cscccccc", {none, 0, none}},
      {"cs", {none, files::error::file_not_found}},
      {"cr", {0, files::error::link_refused}},
      {"csccrrrrr", {none, 0, none, 0, none}}};
  for (const auto& [letters, errors] : conversations) {
    browser() = {.errors = errors};
    EXPECT_EQ(PressHelp(), errors.back() == 0 ? "" : "Nije ostvarena veza sa Browser-om");
    std::vector<std::string> expected;
    for (const char letter : letters) expected.push_back(calls[letter]);
    EXPECT_EQ(browser().calls, expected) << letters;
  }
}

TEST_F(BrowserLinkTest, TheRegistryGivesShortPlainStringsOnly) {
  const std::string longest(255, 'A');
  const std::pair<toolkit::RegistryValue, std::string> values[] = {
      {{1, longest}, longest}, {{1, longest + 'A'}, ""}, {{2, "%PUT%"}, ""}};
  for (const auto& [value, service] : values) {
    browser() = {.registry = {{R"(http\shell\open\ddeexec\Application)", value}}};
    PressHelp();
    EXPECT_EQ(browser().calls.front(), "connect " + service + '|');
  }
}

}  // namespace kalvon::testing
