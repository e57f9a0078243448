// SPDX-License-Identifier: MIT
#include "shell/browser_link.h"
#include "files/folder_entries.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>

#include "files/host_paths.h"
#include "shell/toolkit/windows/application.h"
#include "support/program_test.h"
#include "support/scripted_browser.h"

namespace kalvon::testing {
namespace {

constexpr int unanswered = files::error::no_application_answered;
constexpr int refused = files::error::link_refused;

class BrowserLinkTest : public ProgramTest {
 protected:
  /// Presses the help button; the texts of the messages that came up and were answered.
  std::vector<std::string> PressHelp() {
    std::vector<std::string> messages;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&messages] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      messages.push_back(box->text().toStdString());
      box->accept();
    });
    answers.start(1);
    ClickButton("cmd_glavni(6)");
    return messages;
  }

  [[nodiscard]] long Calls(const std::string& kind) {
    return std::ranges::count_if(browser().calls,
                                 [&](const auto& call) { return call.starts_with(kind); });
  }
};

TEST_F(BrowserLinkTest, ARunningBrowserIsAskedForTheManualAndNotStarted) {
  EXPECT_EQ(PressHelp(), std::vector<std::string>{});
  const std::string folder = files::LowerCase(toolkit::App::Path());
  EXPECT_EQ(browser().calls,
            (std::vector<std::string>{"connect CITAC|WWW_OpenURL",
                                      "request " + folder + "\\uputstvo\\pocetak.htm,,-1"}));
}

struct Conversation {
  const char* name;
  std::vector<int> connect_errors;
  std::vector<int> request_errors;
  int start_error;
  long connects, requests, starts;
  bool message;
};

const Conversation conversations[] = {
    {"answers once it is started", {unanswered, 0}, {0}, 0, 2, 1, 1, false},
    {"answers at the last try",
     {unanswered, unanswered, unanswered, unanswered, unanswered, unanswered, 0},
     {0},
     0,
     7,
     1,
     1,
     false},
    {"never answers", {unanswered}, {0}, 0, 7, 0, 1, true},
    {"cannot be started", {unanswered}, {0}, files::error::file_not_found, 1, 0, 1, true},
    {"fails otherwise", {refused}, {0}, 0, 1, 0, 0, true},
    {"refuses the request", {0}, {refused}, 0, 1, 1, 0, true},
    {"counts the tries of both steps together",
     {unanswered, unanswered, 0},
     {unanswered},
     0,
     3,
     5,
     1,
     true},
};

TEST_F(BrowserLinkTest, StartsTheBrowserOnceAndTriesSixTimesMore) {
  for (const Conversation& row : conversations) {
    SCOPED_TRACE(row.name);
    browser() = {.connect_errors = row.connect_errors,
                 .request_errors = row.request_errors,
                 .start_error = row.start_error};
    const std::vector<std::string> messages = PressHelp();
    EXPECT_EQ(Calls("connect"), row.connects);
    EXPECT_EQ(Calls("request"), row.requests);
    EXPECT_EQ(Calls("start citac --novi"), row.starts);
    EXPECT_EQ(messages, row.message ? std::vector<std::string>{"Nije ostvarena veza sa Browser-om"}
                                    : std::vector<std::string>{});
  }
}

TEST_F(BrowserLinkTest, WithoutABrowserThereIsOneMessageAndTheProgramGoesOn) {
  browser() = {
      .registry = {}, .connect_errors = {unanswered}, .start_error = files::error::file_not_found};
  EXPECT_EQ(PressHelp().size(), 1U);
  EXPECT_EQ(browser().calls.front(), "connect |");
  CopySample("proba.qvm");
  Load("proba.qvm");
  EXPECT_EQ(PressHelp().size(), 1U);
  EXPECT_TRUE(Widget("cmd_glavni(1)")->isEnabled());
}

TEST_F(BrowserLinkTest, TheRegistryGivesShortPlainStringsOnly) {
  const std::string longest(255, 'a');
  browser().registry = {{"kratka", {1, "vrednost"}}, {"prazna", {1, ""}},
                        {"najduza", {1, longest}},   {"preduga", {1, longest + 'a'}},
                        {"putanja", {2, "%put%"}},   {"broj", {4, "abcd"}}};
  const std::map<std::string, std::string> values = {
      {"kratka", "vrednost"}, {"prazna", ""}, {"najduza", longest}, {"preduga", ""},
      {"putanja", ""},        {"broj", ""},   {"nema", ""}};
  std::uint32_t classes_root = 0x80000000;
  for (const auto& [key, value] : values)
    EXPECT_EQ(citaj_registar(classes_root, key, ""), value) << key;
  EXPECT_EQ(citaj_registar(classes_root, "kratka", "ime"), "");
  std::uint32_t another_root = 0x80000001;
  EXPECT_EQ(citaj_registar(another_root, "kratka", ""), "");
}

}  // namespace
}  // namespace kalvon::testing
