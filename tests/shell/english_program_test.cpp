// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <algorithm>
#include <functional>

#include "shell/help_text.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class EnglishProgramTest : public ProgramTest {
 protected:
  EnglishProgramTest() : ProgramTest(1) {}

  [[nodiscard]] bool HelpIsOpen() const { return Widget("txt_rec1")->isVisible(); }
  /// A digit for each enabled command, in the order of their indexes.
  [[nodiscard]] static std::string EnabledCommands() {
    std::string enabled;
    for (int i = 0; i < 7; ++i)
      if (frm_glavni->cmd_glavni(i).Enabled()) enabled += std::to_string(i);
    return enabled;
  }
};

TEST_F(EnglishProgramTest, OptionsStandInTheirFramesAndBesideTheCount) {
  Load("proba.qvm");
  ClickButton("cmd_glavni(5)");
  auto& form = *frm_opcije;
  EXPECT_FALSE(form.frm_opcije(2).Visible());
  EXPECT_EQ(form.Height(), 6915 - 1395);
  EXPECT_EQ(form.frm_opcije(0).Top(), 60);
  EXPECT_EQ(form.Label1(6).Caption(), "No. of horizontal words: 2");
  for (int i = 0; i < 11; ++i) {
    const auto& label = form.Label1(i);
    EXPECT_EQ(label.FontName(), "MS Sans Serif") << i;
    const int room = i < 4 ? form.Label2.Left() : form.frm_opcije(1).Width();
    EXPECT_LT(label.Left() + label.Width(), room) << label.Caption();
  }
}

TEST_F(EnglishProgramTest, ACrosswordOfAllLettersIsSolvedByKeysAndSaved) {
  Load("equinox.qvm");
  const std::size_t unsolved = ReadFile("equinox.qvm").size();
  ClickPicture("pic_tekst(1)", 40, 7);
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("w"));
  QApplication::sendEvent(QApplication::focusWidget(), &composed);
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "W") << "composed by an input method";
  Type("ishful");
  PressKey(Qt::Key_Return);
  ClickCell(3, 1);
  ClickCell(3, 1);
  Type("EQUINOX");
  EXPECT_EQ(glavni.rec_tekst, "_______") << "capitals are no keys";
  Type("equinox");
  PressKey(Qt::Key_Return);
  ClickButton("cmd_glavni(5)");
  ClickButton("cmd_opcije(4)");
  EXPECT_EQ(frm_opcije->Label2.Caption(), "0");
  ClickButton("cmd_opcije(3)");
  ClickButton("cmd_opcije(0)");
  ClickButton("cmd_glavni(1)");
  Restart();
  Load("equinox.qvm");

  std::size_t letters = 0;
  for (int y = 1; y <= 13; ++y) {
    for (int x = 1; x <= 13; ++x) {
      const std::string& cell = glavni.ukr_polja(x, y, 1);
      if (cell.front() == '$') continue;
      ++letters;
      EXPECT_EQ(cell[0], cell[1]) << x << ',' << y;
    }
  }
  EXPECT_EQ(ReadFile("equinox.qvm").size(), unsolved + letters);
}

TEST_F(EnglishProgramTest, AListWithoutAClueBehindTheFirstShowsItsLast) {
  std::vector<std::string> first(15, "###");
  std::vector<std::string> second = first;
  first[0] = "ABC";
  second[0] = second[1] = "A##";
  WriteFile("proba001.qvm", Qvm({.rows = first, .marks = {0, 1}}));
  WriteFile("proba002.qvm", Qvm({.rows = second, .marks = {0, 1}, .number = 2}));
  Load("proba002.qvm");
  EXPECT_EQ(glavni.lista(1, 1, 1), "1: A1");
  EXPECT_EQ(glavni.sel_broj, 1);
}

TEST_F(EnglishProgramTest, TheDialogDescribesInEnglishWithoutInstallments) {
  Choose("zima1001.qvm");
  EXPECT_EQ(frm_ucit_snimi->Caption(), "Load crossword");
  EXPECT_EQ(frm_ucit_snimi->cmd_ucit(1).Caption(), "CANCEL");
  const std::string& rows = frm_ucit_snimi->lbl_ucit.Caption();
  EXPECT_TRUE(rows.starts_with("Name: "));
  EXPECT_EQ(std::ranges::count(rows, '\r'), 2);
}

TEST_F(EnglishProgramTest, HelpLiesOverTheGridAndOpensAndClosesByItsButton) {
  for (const char* enabled : {"026", "0123456"}) {
    EXPECT_EQ(EnabledCommands(), enabled);
    ClickButton("cmd_glavni(6)");
    EXPECT_TRUE(HelpIsOpen());
    EXPECT_EQ(Widget("txt_rec1")->geometry(), QRect(200, 44, 439, 437));
    EXPECT_EQ(FocusedControl(), "txt_rec1");
    EXPECT_EQ(EnabledCommands(), "26");
    ClickButton("cmd_glavni(6)");
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_EQ(EnabledCommands(), enabled);
    Load("proba.qvm");
  }
}

TEST_F(EnglishProgramTest, HelpClosesByATypedCharacterADoubleClickAndANewText) {
  auto* panel = Widget<QPlainTextEdit>("txt_rec1");
  const std::function<void()> ways[] = {
      [this] { Type("a"); },
      [panel] {
        QTest::mouseDClick(panel->viewport(), Qt::LeftButton, {}, {100, 100});
      },
      [] { frm_glavni->txt_rec1.Text(HelpText()); }};
  for (const auto& close : ways) {
    ClickButton("cmd_glavni(6)");
    PressKey(Qt::Key_Delete);
    ASSERT_TRUE(HelpIsOpen());
    close();
    EXPECT_FALSE(HelpIsOpen());
    EXPECT_EQ(frm_glavni->txt_rec1.Text(), HelpText());
  }
}

}  // namespace
}  // namespace kalvon::testing
