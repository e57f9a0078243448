// SPDX-License-Identifier: MIT
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "letters/letter_conversion.h"
#include "shell/help_text.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class EnglishProgramTest : public ProgramTest {
 protected:
  EnglishProgramTest() : ProgramTest(1) {}
};

TEST_F(EnglishProgramTest, HasItsOwnFontAlphabetAndOptions) {
  EXPECT_EQ(glavni.font_ime, "MS Sans Serif");
  EXPECT_EQ(std::string(azbuka(true)), "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  EXPECT_FALSE(frm_opcije->frm_opcije(2).Visible());
  EXPECT_EQ(frm_opcije->Height(), 6915 - 1395);
  EXPECT_EQ(frm_opcije->frm_opcije(0).Top(), 60);
}

TEST_F(EnglishProgramTest, ButtonsSpeakEnglishAndShowTheirWholeCaptions) {
  const std::map<std::string, std::string> captions = {
      {"cmd_glavni(0)", "&Load"},  {"cmd_glavni(1)", "&Save"},  {"cmd_glavni(2)", "E&xit"},
      {"cmd_glavni(3)", "S&olve"}, {"cmd_glavni(4)", "&Erase"}, {"cmd_glavni(5)", "&Options"},
      {"cmd_glavni(6)", "&Help"},  {"cmd_opcije(0)", "OK"}};
  for (const auto& [control, caption] : captions) {
    auto* button = Widget<QPushButton>(control);
    EXPECT_EQ(button->text().toStdString(), caption);
    const int needed = button->fontMetrics().horizontalAdvance(button->text().remove(u'&'));
    EXPECT_LE(needed + 4, button->width()) << control;
  }
}

TEST_F(EnglishProgramTest, OptionsStandInTheirFramesAndBesideTheCount) {
  CopySample("proba.qvm");
  Load("proba.qvm");
  ClickButton("cmd_glavni(5)");
  auto& form = *frm_opcije;
  EXPECT_EQ(form.Caption(), "Options");
  EXPECT_EQ(form.frm_opcije(0).Caption() + ", " + form.frm_opcije(1).Caption(),
            "Crossword, Basic statistic");
  const char* const labels[] = {"Erase all words",
                                "Solve puzzle",
                                "No. of incorrect letters",
                                "Erase incorrect letters",
                                "Dimensions: X=3 Y=3",
                                "Total no. of words: 4",
                                "No. of horizontal words: 2",
                                "No. of vertical words: 2",
                                "No. of black fields: 1",
                                "No. of active fields: 8",
                                "Total no. of fields: 9"};
  for (int i = 0; i < 11; ++i) {
    auto& label = form.Label1(i);
    EXPECT_EQ(label.Caption(), labels[i]);
    EXPECT_EQ(label.FontName(), "MS Sans Serif") << i;
    const int room = i < 4 ? form.Label2.Left() : form.frm_opcije(1).Width();
    EXPECT_LT(label.Left() + label.Width(), room) << labels[i];
  }
  EXPECT_EQ(frm_glavni->Label1(0).Caption() + ", " + frm_glavni->Label1(1).Caption(),
            "Across, Down");
}

TEST_F(EnglishProgramTest, ACrosswordOfAllLettersIsSolvedByKeysAndSaved) {
  CopySample("equinox.qvm");
  const std::string unsolved = ReadFile("equinox.qvm");
  Load("equinox.qvm");
  ClickPicture("pic_tekst(1)", 40, 7);
  Type("wishful");
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
  EXPECT_EQ(glavni.rec_tekst, "WHERE");

  int letters = 0;
  for (int y = 1; y <= 13; ++y) {
    for (int x = 1; x <= 13; ++x) {
      const std::string& cell = glavni.ukr_polja(x, y, 1);
      if (cell.front() == '$') continue;
      ++letters;
      EXPECT_EQ(cell[0], cell[1]) << x << ',' << y;
    }
  }
  EXPECT_EQ(ReadFile("equinox.qvm").size(), unsolved.size() + static_cast<unsigned>(letters));
}

class HelpPanelTest : public EnglishProgramTest {
 protected:
  [[nodiscard]] bool IsOpen() const { return Widget("txt_rec1")->isVisible(); }

  /// A digit for each enabled command, in the order of their indexes.
  [[nodiscard]] std::string EnabledCommands() const {
    std::string enabled;
    for (int i = 0; i < 7; ++i)
      if (frm_glavni->cmd_glavni(i).Enabled()) enabled += std::to_string(i);
    return enabled;
  }
};

TEST_F(HelpPanelTest, LiesOverTheGridAndOpensAndClosesByItsButton) {
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(EnabledCommands(), "026");
  ClickButton("cmd_glavni(6)");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(Widget("txt_rec1")->geometry(), QRect(200, 44, 439, 437));
  EXPECT_EQ(FocusedControl(), "txt_rec1");
  EXPECT_EQ(EnabledCommands(), "26");
  ClickButton("cmd_glavni(6)");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(EnabledCommands(), "026");
}

TEST_F(HelpPanelTest, GivesAllCommandsBackOnceACrosswordIsLoaded) {
  CopySample("proba.qvm");
  Load("proba.qvm");
  ClickButton("cmd_glavni(6)");
  EXPECT_EQ(EnabledCommands(), "26");
  ClickButton("cmd_glavni(6)");
  EXPECT_EQ(EnabledCommands(), "0123456");
}

TEST_F(HelpPanelTest, ClosesByATypedCharacterADoubleClickAndANewText) {
  const auto type = [this] { Type("a"); };
  const auto enter = [this] { PressKey(Qt::Key_Return); };
  const auto double_click = [this] {
    QTest::mouseDClick(Widget<QPlainTextEdit>("txt_rec1")->viewport(), Qt::LeftButton, {},
                       {100, 100});
  };
  const auto new_text = [] { frm_glavni->txt_rec1.Text(HelpText()); };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"character", type}, {"Enter", enter}, {"double click", double_click}, {"text", new_text}};
  for (const auto& [name, close] : ways) {
    ClickButton("cmd_glavni(6)");
    ASSERT_TRUE(IsOpen()) << name;
    close();
    EXPECT_FALSE(IsOpen()) << name;
    EXPECT_EQ(frm_glavni->txt_rec1.Text(), HelpText()) << name;
  }
}

TEST_F(HelpPanelTest, ItsKeysMoveTheTextAndChangeNothing) {
  ClickButton("cmd_glavni(6)");
  auto* panel = Widget<QPlainTextEdit>("txt_rec1");
  const QScrollBar& bar = *panel->verticalScrollBar();
  EXPECT_EQ(bar.value(), 0);
  PressKey(Qt::Key_PageDown);
  EXPECT_GT(bar.value(), 10);
  QTest::keyClick(panel, Qt::Key_End, Qt::ControlModifier);
  EXPECT_GE(bar.value(), bar.maximum() - 1) << "the last line is in sight";
  PressKey(Qt::Key_Up);
  QTest::keyClick(panel, Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(bar.value(), 0);
  PressKey(Qt::Key_Delete);
  QTest::mouseClick(panel->viewport(), Qt::LeftButton, {}, {100, 100});
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(frm_glavni->txt_rec1.Text(), HelpText());
}

}  // namespace
}  // namespace kalvon::testing
