// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QPushButton>
#include <algorithm>
#include <fstream>

#include "files/drives.h"
#include "files/host_paths.h"
#include "shell/toolkit/desktop/screen.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

namespace fs = std::filesystem;

std::string Head(const std::string& lines_2_to_9) { return "\r\n" + lines_2_to_9; }

class LoadDialogTest : public ProgramTest {
 protected:
  static std::string Panel() {
    std::string rows = frm_ucit_snimi->lbl_ucit.Caption();
    for (char& c : rows)
      if (c == '\r') c = '|';
    return rows;
  }
};

TEST_F(LoadDialogTest, OpensOverTheDisabledMainFormWithItsFirstFileDescribed) {
  CopySample("proba.qvm");
  Choose("proba.qvm");
  EXPECT_TRUE(frm_ucit_snimi->Visible());
  EXPECT_FALSE(frm_glavni->Enabled());
  EXPECT_EQ(frm_ucit_snimi->Caption(), "Ucitavanje ukrstenice");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "proba.qvm");
  EXPECT_FALSE(frm_ucit_snimi->txt_ucit.Enabled());
  EXPECT_EQ(Panel(), "Naziv: Proba|Dimenzije:  X=  3 Y=  3|Opis: Tri puta tri");
  ClickButton("cmd_ucit(1)");
  EXPECT_FALSE(frm_ucit_snimi->Visible());
  EXPECT_TRUE(frm_glavni->Enabled());
}

TEST_F(LoadDialogTest, TellsOfInstallmentsByTheWholeNumbersOfTheMarks) {
  WriteFile("marke.qvm", Head("Naziv:  Dva smera \r\nDim:X=  1 Y=  1\r\nOpis:bez:kraja\r\n"
                              "Broj: 7 \r\nH1: 10\r\nV1: 0\r\nH2: 0\r\nbez oznake\r\n"));
  Choose("marke.qvm");
  EXPECT_EQ(Panel(),
            "Naziv: Dva smera|Dimenzije:  X=  1 Y=  1|Ukr{tenica u 'horizontalnim' nastavcima"
            "|Nastavak broj: 7|Opis: bez:kraja");
}

TEST_F(LoadDialogTest, AFileThatCannotBeReadShowsEmptyRows) {
  WriteFile("kratka.qvm", "\r\nNaziv: Kratka\r\n");
  fs::create_symlink(folder() / "nema-je", folder() / "veza.qvm");
  ASSERT_EQ(mkfifo((folder() / "cev.qvm").c_str(), 0600), 0);
  WriteFile("bajtovi.qvm", std::string("\0\x01\xFF\xFE:\x80", 6));
  Choose("kratka.qvm");
  EXPECT_EQ(Panel(), "Naziv: Kratka|Dimenzije:  |Opis: ");
  ClickButton("cmd_ucit(1)");
  for (const char* name : {"veza.qvm", "cev.qvm", "bajtovi.qvm"}) {
    Choose(name);
    EXPECT_EQ(Panel(), "Naziv: |Dimenzije:  |Opis: ") << name;
    ClickButton("cmd_ucit(0)");
    EXPECT_FALSE(frm_ucit_snimi->Visible()) << name;
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0) << name;
  }
  CopySample("proba.qvm");
  Load("proba.qvm");
  EXPECT_EQ(glavni.broj_pitanja, 3) << "the next good crossword loads";
}

TEST_F(LoadDialogTest, AFileThatVanishesBehindTheListIsMet) {
  CopySample("proba.qvm");
  Choose("proba.qvm");
  fs::remove(folder() / "proba.qvm");
  ClickButton("cmd_ucit(0)");
  EXPECT_FALSE(frm_ucit_snimi->Visible());
  EXPECT_TRUE(frm_glavni->Enabled());
}

TEST_F(LoadDialogTest, CancelGoesBackToTheCrosswordInTheGrid) {
  CopySample("proba.qvm");
  CopySample("velika.qvm");
  const std::string other = ReadFile("velika.qvm");
  Load("proba.qvm");
  ClickCell(1, 1);
  Type("mak");
  PressKey(Qt::Key_Return);
  Choose("velika.qvm");
  ClickButton("cmd_ucit(1)");
  ClickButton("cmd_glavni(1)");
  EXPECT_EQ(ReadFile("velika.qvm"), other);
  EXPECT_NE(ReadFile("proba.qvm").find("MM$0$1$1$00"), std::string::npos);
}

TEST_F(LoadDialogTest, OpeningAgainDescribesTheHighlightedFileAnew) {
  CopySample("proba.qvm");
  CopySample("velika.qvm");
  Choose("velika.qvm");
  ClickButton("cmd_ucit(1)");
  ClickButton("cmd_glavni(0)");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "proba.qvm");
  EXPECT_TRUE(Panel().starts_with("Naziv: Proba|"));
  EXPECT_TRUE(glavni.ukr_staza.ends_with("\\proba.qvm"));
}

TEST_F(LoadDialogTest, AnEmptyFolderStillLetsTheDialogGo) {
  ClickButton("cmd_glavni(0)");
  EXPECT_EQ(Widget("frm_ucit_snimi")->focusWidget(), Widget("Dir1"));
  ClickButton("cmd_ucit(0)");
  EXPECT_FALSE(frm_ucit_snimi->Visible());
  EXPECT_TRUE(frm_glavni->Enabled());
}

TEST_F(LoadDialogTest, EnterAndADoubleClickInTheListLoad) {
  CopySample("proba.qvm");
  Choose("proba.qvm");
  QTest::keyClick(Widget("File1"), Qt::Key_Return);
  EXPECT_FALSE(frm_ucit_snimi->Visible());
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (proba.qvm)");
  Choose("proba.qvm");
  auto* list = Widget<QAbstractItemView>("File1");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                     list->visualRect(list->currentIndex()).center());
  EXPECT_FALSE(frm_ucit_snimi->Visible());
}

TEST_F(LoadDialogTest, AnotherFolderEmptiesTheNameAndShowsItsFiles) {
  CopySample("proba.qvm");
  fs::create_directory(folder() / "Nova Godina");
  fs::copy_file(folder() / "proba.qvm", folder() / "Nova Godina" / "Zima.QVM");
  Choose("proba.qvm");
  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\nova godina");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "");
  EXPECT_EQ(Panel(), "");
  ASSERT_EQ(frm_ucit_snimi->File1.ListCount(), 1);
  EXPECT_EQ(frm_ucit_snimi->File1.List(0), "Zima.QVM");
  ClickButton("cmd_ucit(1)");

  ClickButton("cmd_glavni(0)");
  ClickButton("cmd_ucit(0)");
  EXPECT_EQ(glavni.broj_pitanja, 3);
  ClickButton("cmd_glavni(3)");
  ClickButton("cmd_glavni(1)");
  EXPECT_NE(ReadFile("Nova Godina/Zima.QVM"), ReadFile("proba.qvm"));
  EXPECT_FALSE(fs::exists(folder() / "Nova Godina" / "zima.qvm")) << "the name keeps its case";
}

TEST_F(LoadDialogTest, ACommandPressedJustBeforeTheDialogOpensIsLost) {
  CopySample("proba.qvm");
  WriteFile("aaa.qvm", ReadFile("proba.qvm"));
  Load("proba.qvm");
  ClickButton("cmd_glavni(3)");
  const std::string other = ReadFile("aaa.qvm");
  Widget<QPushButton>("cmd_glavni(0)")->animateClick();
  Widget<QPushButton>("cmd_glavni(1)")->animateClick();
  QTest::qWait(300);
  EXPECT_TRUE(frm_ucit_snimi->Visible());
  EXPECT_EQ(ReadFile("aaa.qvm"), other) << "the highlighted file is not the loaded one";
}

TEST_F(LoadDialogTest, ALoadThatGivesUpAtOnceChangesNothing) {
  CopySample("proba.qvm");
  WriteFile("losa.qvm", "\r\nNaziv: Kratka\r\n");
  Load("proba.qvm");
  const Crossword before = glavni;
  Load("losa.qvm");
  EXPECT_EQ(static_cast<const Crossword&>(glavni), before);
  EXPECT_EQ(PixelOf("pic_ukr", 26, 26), 0xFFFF7FU) << "the word stays marked";
  EXPECT_EQ(glavni.rec_tekst, "___");
  ClickCell(1, 3);
  EXPECT_EQ(PixelOf("pic_ukr", 26, 26), 0xFFFFFFU);
  EXPECT_EQ(PixelOf("pic_ukr", 26, 82), 0xFFFF7FU) << "the next click marks one word";
}

TEST_F(LoadDialogTest, ADriveThatCannotBeReadLeadsBackToTheProgramsOwn) {
  if (!fs::is_directory("/mnt")) GTEST_SKIP() << "no folder that could be a medium";
  CopySample("proba.qvm");
  Choose("proba.qvm");
  std::ofstream(folder() / "mounts") << "dev /mnt vfat rw 0 0\n";
  files::MountTable((folder() / "mounts").string());
  frm_ucit_snimi->Drive1.Drive("d:");
  EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), "d:\\");
  std::ofstream(folder() / "mounts") << "";
  frm_ucit_snimi->Drive1.Change.Raise();
  files::MountTable("/proc/self/mounts");
  EXPECT_EQ(frm_ucit_snimi->Drive1.Drive(), "c:\\");
  EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), "c:\\");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "");
}

class EnglishLoadDialogTest : public ProgramTest {
 protected:
  EnglishLoadDialogTest() : ProgramTest(1) {}
};

TEST_F(EnglishLoadDialogTest, DescribesInEnglishWithoutInstallments) {
  CopySample("zima1001.qvm");
  Choose("zima1001.qvm");
  EXPECT_EQ(frm_ucit_snimi->Caption(), "Load crossword");
  EXPECT_EQ(frm_ucit_snimi->cmd_ucit(1).Caption(), "CANCEL");
  const std::string& rows = frm_ucit_snimi->lbl_ucit.Caption();
  EXPECT_TRUE(rows.starts_with("Name: "));
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\r'), 2);
}

}  // namespace
}  // namespace kalvon::testing
