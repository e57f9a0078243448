// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <functional>

#include "shell/help_text.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

class EnglishProgramTest : public ProgramTest {
 protected:
  EnglishProgramTest() : ProgramTest(1) {}
};

TEST_F(EnglishProgramTest, ACrosswordOfAllLettersIsSolvedByKeysAndSaved) {
  Load("equinox.qvm");
  ClickPicture("pic_tekst(1)", 40, 7);
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("w"));
  QApplication::sendEvent(QApplication::focusWidget(), &composed);
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "W") << "composed by an input method";
  Type("ishful");
  PressKey(Qt::Key_Return);
  for (int click = 1; click <= 2; ++click) ClickCell(3, 1);
  Type("EQUINOX");
  EXPECT_EQ(glavni.rec_tekst, "_______") << "capitals are no keys";
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Delete}) PressKey(key);
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "_") << "the program's keys are none of the field's";
  Type("equinox");
  PressKey(Qt::Key_Return);
  ClickButton("cmd_glavni(5)");
  ClickButton("cmd_opcije(4)");
  EXPECT_EQ(frm_opcije->Label2.Caption(), "0");
  EXPECT_TRUE(frm_opcije->Label1(6).Caption().starts_with("No. of horizontal words: "));
  EXPECT_FALSE(frm_opcije->frm_opcije(2).Visible());
  EXPECT_EQ(frm_opcije->Height(), 6915 - 1395);
  for (const char* button : {"cmd_opcije(3)", "cmd_opcije(0)", "cmd_glavni(1)"})
    ClickButton(button);
  Restart();
  Load("equinox.qvm");
  for (int i = 0; i < 13 * 13; ++i) {
    const std::string& cell = glavni.ukr_polja(i % 13 + 1, i / 13 + 1, 1);
    EXPECT_TRUE(cell[0] == '$' || cell[0] == cell[1]) << i;
  }
}

TEST_F(EnglishProgramTest, InstallmentsAreNotDescribedAndAListOfOneClueShowsIt) {
  std::vector<std::string> rows(15, "###");
  rows[0] = "ABC";
  WriteFile("proba001.qvm", Qvm({.rows = rows, .marks = {0, 1}}));
  rows[0] = rows[1] = "A##";
  WriteFile("proba002.qvm", Qvm({.rows = rows, .marks = {0, 1}}));
  Choose("proba002.qvm");
  EXPECT_EQ(frm_ucit_snimi->Caption() + frm_ucit_snimi->cmd_ucit(1).Caption(),
            "Load crosswordCANCEL");
  EXPECT_EQ(frm_ucit_snimi->lbl_ucit.Caption(),
            "Name: Proba\rDimensions:  X=  3 Y= 15\rBrief Description: Tri puta tri");
  ClickButton("cmd_ucit(0)");
  EXPECT_EQ(glavni.lista(1, 1, 1), "1: A1");
  EXPECT_EQ(glavni.sel_broj, 1);
}

TEST_F(EnglishProgramTest, HelpLiesOverTheGridUntilItIsClosed) {
  auto* panel = Widget<QPlainTextEdit>("txt_rec1");
  const std::function<void()> ways[] = {
      [this] { ClickButton("cmd_glavni(6)"); }, [this] { Type("a"); },
      [panel] {
        QTest::mouseDClick(panel->viewport(), Qt::LeftButton, {}, {100, 100});
      },
      [] { frm_glavni->txt_rec1.Text(HelpText()); }};
  bool loaded = false;
  for (const auto& close : ways) {
    ClickButton("cmd_glavni(6)");
    EXPECT_EQ(panel->geometry(), QRect(200, 44, 439, 437));
    EXPECT_EQ(FocusedControl(), "txt_rec1");
    PressKey(Qt::Key_Delete);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_FALSE(frm_glavni->cmd_glavni(0).Enabled() || frm_glavni->cmd_glavni(1).Enabled());
    close();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(frm_glavni->txt_rec1.Text(), HelpText());
    EXPECT_TRUE(frm_glavni->cmd_glavni(0).Enabled());
    EXPECT_EQ(frm_glavni->cmd_glavni(1).Enabled(), loaded);
    Load("proba.qvm");
    loaded = true;
  }
}

}  // namespace kalvon::testing
