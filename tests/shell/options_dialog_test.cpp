// SPDX-License-Identifier: MIT
#include <utility>

#include "support/program_test.h"

namespace kalvon::testing {
namespace {

class OptionsDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    CopySample("proba.qvm");
    Load("proba.qvm");
    ClickButton("cmd_glavni(5)");
  }
};

TEST_F(OptionsDialogTest, ShowsTheStatisticsEachTimeAnew) {
  for (int opening = 1; opening <= 2; ++opening) {
    const std::vector<std::pair<int, std::string>> captions = {
        {4, "Dimenzije: X=3 Y=3"},    {10, "Ukupan broj polja: 9"},
        {8, "Broj crnih polja: 1"},   {9, "^ista (ostala) polja: 8"},
        {5, "Ukupan broj re~i: 4"},   {6, "Broj vodoravnih re~i: 2"},
        {7, "Broj uspravnih re~i: 2"}};
    for (const auto& [label, caption] : captions)
      EXPECT_EQ(frm_opcije->Label1(label).Caption(), caption) << "opening " << opening;
    EXPECT_EQ(frm_opcije->Label2.Caption(), "");
    ClickButton("cmd_opcije(4)");
    EXPECT_EQ(frm_opcije->Label2.Caption(), "0");
    ClickButton("cmd_opcije(0)");
    ClickButton("cmd_glavni(5)");
  }
}

TEST_F(OptionsDialogTest, IsLeftByItsButtonAlone) {
  EXPECT_TRUE(frm_opcije->Visible());
  EXPECT_FALSE(frm_glavni->Enabled());
  Widget("frm_opcije")->close();
  Widget("frm_glavni")->close();
  QTest::keyClick(Widget("frm_opcije"), Qt::Key_Escape);
  EXPECT_TRUE(frm_opcije->Visible());
  EXPECT_TRUE(frm_glavni->Visible());
  QTest::keyClick(Widget("cmd_opcije(0)"), Qt::Key_Return);
  EXPECT_FALSE(frm_opcije->Visible());
  EXPECT_TRUE(frm_glavni->Enabled());
}

TEST_F(OptionsDialogTest, AChoiceShowsWithTheNextButton) {
  ClickButton("cmd_opcije(3)");
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "M");
  QTest::mouseClick(Widget("opt_opcije(0)"), Qt::LeftButton, {}, {8, 8});
  QTest::mouseClick(Widget("opt_opcije1(1)"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(frm_glavni->txt_rec(0).FontName(), "Kalvon") << "not yet";
  ClickButton("cmd_opcije(0)");
  EXPECT_EQ(frm_glavni->txt_rec(0).FontName(), "Arial");
  EXPECT_EQ(frm_glavni->txt_rec(0).Charset(), 204);
  EXPECT_EQ(frm_glavni->txt_rec(0).Text(), "\xCC") << "the Cyrillic letter";
}

struct Choice {
  const char* name;
  int script;
  int layout;
  const char* lines;
};

class SettingsTest : public OptionsDialogTest, public ::testing::WithParamInterface<Choice> {};

TEST_P(SettingsTest, SurviveARestart) {
  frm_opcije->opt_opcije(GetParam().script).Value(true);
  frm_opcije->opt_opcije1(GetParam().layout).Value(true);
  std::filesystem::create_directory(folder() / "Druga Fascikla");
  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\druga fascikla");
  const std::string shown = frm_ucit_snimi->Dir1.Path();
  ClickButton("cmd_opcije(0)");
  ClickButton("cmd_glavni(2)");
  EXPECT_EQ(ReadFile("m_kalvon_ini.txt"),
            "Vostrand Kalvon Multimedia\r\nStaza:" + shown + "\r\n" + GetParam().lines);
  Restart();
  EXPECT_TRUE(frm_opcije->opt_opcije(GetParam().script).Value());
  EXPECT_TRUE(frm_opcije->opt_opcije1(GetParam().layout).Value());
  EXPECT_TRUE(shown.ends_with("\\Druga Fascikla"));
  EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), shown);
  EXPECT_EQ(frm_ucit_snimi->File1.ListCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, SettingsTest,
    ::testing::Values(Choice{"CyrillicAscii", 0, 0, "Pismo:Cirilica\r\nTastatura:YU ASCII\r\n"},
                      Choice{"CyrillicUnicode", 0, 1, "Pismo:Cirilica\r\nTastatura:Unikod\r\n"},
                      Choice{"LatinAscii", 1, 0, "Pismo:Latinica\r\nTastatura:YU ASCII\r\n"},
                      Choice{"LatinUnicode", 1, 1, "Pismo:Latinica\r\nTastatura:Unikod\r\n"}),
    [](const auto& choice) { return choice.param.name; });

}  // namespace
}  // namespace kalvon::testing
