// SPDX-License-Identifier: MIT
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class OptionsDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    WriteFile("mira.qvm", Qvm({"MIRA", "A##V", "K##A"}));
    Load("mira.qvm");
    ClickButton("cmd_glavni(5)");
  }
};

TEST_F(OptionsDialogTest, ShowsTheStatisticsEachTimeAnewAndIsLeftByItsButtonAlone) {
  for (int opening = 1; opening <= 2; ++opening) {
    std::string captions;
    for (int label = 4; label <= 10; ++label) captions += frm_opcije->Label1(label).Caption() + '|';
    EXPECT_EQ(captions,
              "Dimenzije: X=4 Y=3|Ukupan broj re~i: 3|Broj vodoravnih re~i: 1|"
              "Broj uspravnih re~i: 2|Broj crnih polja: 4|^ista (ostala) polja: 8|"
              "Ukupan broj polja: 12|");
    EXPECT_EQ(frm_opcije->Label2.Caption(), "");
    ClickButton("cmd_opcije(4)");
    EXPECT_EQ(frm_opcije->Label2.Caption(), "0");
    for (const char* form : {"frm_opcije", "frm_glavni"}) Widget(form)->close();
    QTest::keyClick(Widget("frm_opcije"), Qt::Key_Escape);
    EXPECT_TRUE(frm_opcije->Visible() && frm_glavni->Visible());
    QTest::keyClick(Widget("cmd_opcije(0)"), Qt::Key_Return);
    EXPECT_TRUE(!frm_opcije->Visible() && frm_glavni->Enabled());
    ClickButton("cmd_glavni(5)");
  }
}

TEST_F(OptionsDialogTest, AChoiceShowsWithTheNextButtonAndIsKeptAtTheEnd) {
  ClickButton("cmd_opcije(3)");
  for (const char* choice : {"opt_opcije(0)", "opt_opcije1(1)"})
    QTest::mouseClick(Widget(choice), Qt::LeftButton, {}, {8, 8});
  const auto& box = frm_glavni->txt_rec(0);
  EXPECT_EQ(box.FontName() + ' ' + box.Text(), "Kalvon M") << "not yet";
  ClickButton("cmd_opcije(0)");
  EXPECT_EQ(box.FontName() + ' ' + box.Text(), "Arial \xCC") << "the Cyrillic letter";
  EXPECT_EQ(box.Charset(), 204);
  ClickButton("cmd_glavni(2)");
  EXPECT_TRUE(ReadFile("m_kalvon_ini.txt").ends_with("Pismo:Cirilica\r\nTastatura:Unikod\r\n"));
}

}  // namespace
}  // namespace kalvon::testing
