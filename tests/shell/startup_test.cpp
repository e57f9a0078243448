// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <csignal>

#include "shell/commands.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/application.h"
#include "shell/toolkit/windows/end_requests_p.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class StartupTest : public ProgramTest {};

TEST_F(StartupTest, WhatNeedsACrosswordIsDisabled) {
  const std::map<std::string, bool> enabled = {
      {"cmd_glavni(0)", true},  {"cmd_glavni(1)", false}, {"cmd_glavni(2)", true},
      {"cmd_glavni(3)", false}, {"cmd_glavni(4)", false}, {"cmd_glavni(5)", false},
      {"cmd_glavni(6)", true},  {"pic_ukr", false},       {"scr_hor", false},
      {"scr_ver", false},       {"scr_tekst(0)", false},  {"scr_tekst(1)", false},
      {"pic_tekst(0)", false},  {"pic_tekst(1)", false},  {"txt_rec(0)", false},
      {"txt_rec(14)", false}};
  for (const auto& [control, is_enabled] : enabled)
    EXPECT_EQ(Widget(control)->isEnabled(), is_enabled) << control;
}

TEST_F(StartupTest, TheFirstCrosswordEnablesIt) {
  CopySample("proba.qvm");
  Load("proba.qvm");
  for (const char* control : {"cmd_glavni(1)", "cmd_glavni(3)", "cmd_glavni(4)", "cmd_glavni(5)",
                              "pic_ukr", "scr_hor", "scr_ver", "scr_tekst(0)", "scr_tekst(1)",
                              "pic_tekst(0)", "pic_tekst(1)", "txt_rec(0)", "txt_rec(14)"})
    EXPECT_TRUE(Widget(control)->isEnabled()) << control;
  EXPECT_EQ(glavni.pre_ucitavanja, 0);
}

TEST_F(StartupTest, ButtonsSpeakSerbianAndTheLastInTheRowEndsTheProgram) {
  const std::vector<std::pair<std::string, std::string>> captions = {
      {"cmd_glavni(0)", "&Učitaj"}, {"cmd_glavni(1)", "&Snimi"},  {"cmd_glavni(3)", "&Reši"},
      {"cmd_glavni(4)", "&Briši"},  {"cmd_glavni(5)", "&Opcije"}, {"cmd_glavni(6)", "&Pomoć"},
      {"cmd_glavni(2)", "&Kraj"}};
  int left = 0;
  for (const auto& [control, caption] : captions) {
    auto* button = Widget<QPushButton>(control);
    EXPECT_EQ(button->text().toStdString(), caption);
    EXPECT_GT(button->x(), left) << control << " stands in its place in the row";
    left = button->x();
    const int needed = button->fontMetrics().horizontalAdvance(button->text().remove(u'&'));
    EXPECT_LE(needed + 4, button->width()) << control << " shows its whole caption";
  }
}

TEST_F(StartupTest, FormsAreCentredByTheSizeOfTheirSheets) {
  const auto half = [](int twips) { return static_cast<int>(std::floor(twips / 2.0)); };
  EXPECT_EQ(frm_glavni->Left(), half(toolkit::Screen::Width() - frm_glavni->Width()));
  EXPECT_EQ(frm_ucit_snimi->Top(), half(toolkit::Screen::Height() - frm_ucit_snimi->Height()));
  // The options form is centred with its stored height, and grows afterwards.
  const int stored = 5220 + 25 * 15;
  EXPECT_EQ(frm_opcije->Top(), half(toolkit::Screen::Height() - stored));
  EXPECT_EQ(frm_opcije->Height(), 6915);
  EXPECT_EQ(frm_opcije->frm_opcije(0).Top(), 1455);
  EXPECT_EQ(frm_opcije->frm_opcije(1).Top(), 3405);
  EXPECT_EQ(frm_opcije->cmd_opcije(0).Top(), 6105);
}

TEST_F(StartupTest, TheMainFormKeepsItsSize) {
  EXPECT_EQ(Widget("frm_glavni")->size(), QSize(640, 483));
  Widget("frm_glavni")->resize(700, 300);
  QApplication::processEvents();
  EXPECT_EQ(Widget("frm_glavni")->size(), QSize(640, 483));
}

TEST_F(StartupTest, TheGridShowsTheTitlePictureUntilACrosswordIsLoaded) {
  EXPECT_NE(PixelOf("pic_ukr", 5, 5), 0xFFFFFFU);
  EXPECT_EQ(PixelOf("pic_ukr", 415, 415), 0xFFFFFFU);
  CopySample("proba.qvm");
  Load("proba.qvm");
  EXPECT_EQ(PixelOf("pic_ukr", 27, 5), 0U) << "a grid line";
  EXPECT_EQ(PixelOf("pic_ukr", 415, 415), 0xC0C0C0U) << "no cell";
}

TEST_F(StartupTest, TheEndWritesTheSettingsAndNothingElse) {
  CopySample("proba.qvm");
  const std::string before = ReadFile("proba.qvm");
  Load("proba.qvm");
  ClickCell(1, 1);
  Type("mir");
  PressKey(Qt::Key_Return);
  ClickButton("cmd_glavni(2)");
  EXPECT_TRUE(toolkit::Ended());
  EXPECT_EQ(ReadFile("proba.qvm"), before);
  EXPECT_EQ(ReadFile("m_kalvon_ini.txt"),
            "Vostrand Kalvon Multimedia\r\nStaza:" + toolkit::App::Path() +
                "\r\nPismo:Latinica\r\nTastatura:YU ASCII\r\n");
}

TEST_F(StartupTest, ClosingTheMainFormEndsTheProgram) {
  Widget("frm_glavni")->close();
  EXPECT_TRUE(toolkit::Ended());
  EXPECT_NE(ReadFile("m_kalvon_ini.txt"), "");
}

TEST_F(StartupTest, TheDesktopEndsTheProgramAsItsButtonDoes) {
  const toolkit::EndRequests end_requests;
  ClickButton("cmd_glavni(0)");
  ASSERT_EQ(std::raise(SIGTERM), 0);
  EXPECT_FALSE(toolkit::Ended()) << "the event loop ends it, not the signal";
  EXPECT_TRUE(QTest::qWaitFor([] { return toolkit::Ended(); }, 2000));
  EXPECT_NE(ReadFile("m_kalvon_ini.txt"), "");
}

TEST_F(StartupTest, TheTabKeyGoesFromBarsToCommandsToLetters) {
  CopySample("velika.qvm");
  Load("velika.qvm");
  frm_glavni->scr_hor.SetFocus();
  std::string stops;
  for (int i = 0; i < 14; ++i) {
    stops += FocusedControl() + " ";
    PressKey(Qt::Key_Tab);
  }
  EXPECT_EQ(stops,
            "scr_hor scr_ver scr_tekst(0) scr_tekst(1) cmd_glavni(0) cmd_glavni(1) cmd_glavni(2) "
            "cmd_glavni(3) cmd_glavni(4) cmd_glavni(5) txt_rec(0) cmd_glavni(6) txt_rec(1) "
            "txt_rec(2) ");
}

TEST_F(StartupTest, ACommandThatDoesNotExistDoesNothing) {
  komanda_glavni(7);
  komanda_glavni(-1);
  EXPECT_FALSE(toolkit::Ended());
  EXPECT_FALSE(frm_ucit_snimi->Visible());
}

}  // namespace
}  // namespace kalvon::testing
