// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <QAbstractItemView>
#include <algorithm>

#include "files/drives.h"
#include "shell/toolkit/desktop/screen.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

namespace fs = std::filesystem;

class LoadDialogTest : public ProgramTest {
 protected:
  static std::string Description() {
    std::string rows = frm_ucit_snimi->lbl_ucit.Caption();
    std::ranges::replace(rows, '\r', '|');
    return rows;
  }

  void ExpectOpen(bool open) const {
    EXPECT_EQ(frm_ucit_snimi->Visible(), open);
    EXPECT_EQ(frm_glavni->Enabled(), !open);
    EXPECT_TRUE(open || FocusedControl() == "txt_rec(0)");
  }
};

TEST_F(LoadDialogTest, TellsOfInstallmentsByTheWholeNumbersOfTheMarks) {
  for (int mark = 0; mark < 4; ++mark) {
    std::string bytes =
        "\r\nNaziv:  Dva smera \r\nDim:X=  1 Y=  1\r\nOpis:bez:kraja\r\nBroj: 7 \r\n";
    for (int i = 0; i < 4; ++i) bytes += i == mark ? "oznaka: 10\r\n" : "bez oznake\r\n";
    WriteFile("marke.qvm", bytes);
    Choose("marke.qvm");
    const std::string joined = mark % 2 == 0 ? "'horizontalnim'" : "'vertikalnim'";
    EXPECT_EQ(Description(), "Naziv: Dva smera|Dimenzije:  X=  1 Y=  1|Ukr{tenica u " + joined +
                                 " nastavcima|Nastavak broj: 7|Opis: bez:kraja");
    ClickButton("cmd_ucit(1)");
  }
}

TEST_F(LoadDialogTest, AFileThatCannotBeReadShowsEmptyRowsAndChangesNothing) {
  fs::create_symlink(folder() / "nema-je", folder() / "veza.qvm");
  ASSERT_EQ(mkfifo((folder() / "cev.qvm").c_str(), 0600), 0);
  Load("proba.qvm");
  const Crossword before = static_cast<Crossword&>(glavni);
  for (const char* name : {"veza.qvm", "cev.qvm"}) {
    Load(name);
    EXPECT_EQ(Description(), "Naziv: |Dimenzije:  |Opis: ") << name;
    ExpectOpen(false);
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    EXPECT_EQ(static_cast<const Crossword&>(glavni), before);
  }
}

TEST_F(LoadDialogTest, EnterAndADoubleClickInTheListLoadAndCancelGoesBack) {
  auto* list = Widget<QAbstractItemView>("File1");
  Choose("velika.qvm");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                     list->visualRect(list->currentIndex()).center());
  ExpectOpen(false);
  CopySample("proba.qvm");
  Choose("velika.qvm");
  for (const char* button : {"cmd_ucit(1)", "cmd_glavni(0)"}) ClickButton(button);
  QTest::keyClick(list, Qt::Key_Escape);
  ExpectOpen(false);
  ClickButton("cmd_glavni(0)");
  EXPECT_EQ(Widget("frm_ucit_snimi")->focusWidget(), list) << "and no more the button";
  QTest::keyClick(list, Qt::Key_A);
  ExpectOpen(true);
  EXPECT_EQ(frm_ucit_snimi->Caption(), "Ucitavanje ukrstenice");
  EXPECT_FALSE(frm_ucit_snimi->txt_ucit.Enabled());
  EXPECT_EQ(Description(), "Naziv: Proba|Dimenzije:  X=  3 Y=  3|Opis: Tri puta tri");
  QTest::keyClick(list, Qt::Key_Return);
  ExpectOpen(false);
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (proba.qvm)");
  ClickButton("cmd_glavni(3)");
  Choose("velika.qvm");
  const std::string other = ReadFile("velika.qvm");
  ClickButton("cmd_ucit(1)");
  ExpectOpen(false);
  ClickButton("cmd_glavni(1)");
  ExpectOpen(false);
  EXPECT_EQ(ReadFile("velika.qvm"), other);
  EXPECT_NE(ReadFile("proba.qvm").find("MM$0$1$1$00"), std::string::npos) << "a solved cell";
}

TEST_F(LoadDialogTest, AnotherFolderEmptiesTheNameAndShowsItsFiles) {
  Choose("proba.qvm");
  fs::create_directory(folder() / "Nova Godina");
  fs::copy_file(folder() / "proba.qvm", folder() / "Nova Godina" / "Zima.QVM");
  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\nova godina");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text() + Description(), "");
  frm_ucit_snimi->File1.ListIndex(0);
  WriteFile("Nova Godina/Advent.qvm", "");
  QApplication::setActiveWindow(Widget("frm_ucit_snimi"));
  QTest::keyClick(Widget("Dir1"), Qt::Key_F5);
  EXPECT_EQ(frm_ucit_snimi->File1.List(0), "Advent.qvm");
  EXPECT_EQ(frm_ucit_snimi->File1.ListIndex(), 1) << "the file that was chosen";
  ClickButton("cmd_ucit(1)");
  Load("Zima.QVM");
  ClickButton("cmd_glavni(3)");
  ClickButton("cmd_glavni(1)");
  EXPECT_NE(ReadFile("Nova Godina/Zima.QVM"), ReadFile("proba.qvm"));
  EXPECT_FALSE(fs::exists(folder() / "Nova Godina" / "zima.qvm")) << "the name keeps its case";
}

TEST_F(LoadDialogTest, ADriveThatCannotBeReadLeadsBackToTheProgramsOwn) {
  if (!fs::is_directory("/mnt")) GTEST_SKIP() << "no folder that could be a medium";
  Choose("proba.qvm");
  WriteFile("mounts", "dev /mnt vfat rw 0 0\n");
  files::MountTable((folder() / "mounts").string());
  frm_ucit_snimi->Drive1.Drive("d:");
  EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), "d:\\");
  WriteFile("mounts", "");
  frm_ucit_snimi->Drive1.Change.Raise();
  files::MountTable("/proc/self/mounts");
  EXPECT_EQ(frm_ucit_snimi->Drive1.Drive() + frm_ucit_snimi->Dir1.Path(), "c:\\c:\\");
}

class OptionsDialogTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    WriteFile("mira.qvm", Qvm({"MIRA", "A##V", "K##A"}));
    Load("mira.qvm");
    ClickButton("cmd_glavni(5)");
  }
};

TEST_F(OptionsDialogTest, ShowsTheStatisticsEachTimeAnewAndIsLeftByItsButtonOrEscAlone) {
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
    EXPECT_TRUE(frm_opcije->Visible() && frm_glavni->Visible());
    QTest::keyClick(Widget("cmd_opcije(0)"), opening == 1 ? Qt::Key_Return : Qt::Key_Escape);
    EXPECT_TRUE(!frm_opcije->Visible() && FocusedControl() == "txt_rec(0)");
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

}  // namespace kalvon::testing
