// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <QAbstractItemView>
#include <algorithm>

#include "files/drives.h"
#include "files/host_paths.h"
#include "shell/toolkit/desktop/screen.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

namespace fs = std::filesystem;

class LoadDialogTest : public ProgramTest {
 protected:
  static std::string Description() {
    std::string rows = frm_ucit_snimi->lbl_ucit.Caption();
    std::ranges::replace(rows, '\r', '|');
    return rows;
  }

  static void ExpectClosed() {
    EXPECT_FALSE(frm_ucit_snimi->Visible());
    EXPECT_TRUE(frm_glavni->Enabled());
  }
};

TEST_F(LoadDialogTest, OpensOverTheDisabledMainFormAndDescribesTheChosenFile) {
  Choose("proba.qvm");
  auto& dialog = *frm_ucit_snimi;
  EXPECT_TRUE(dialog.Visible() && !frm_glavni->Enabled());
  EXPECT_EQ(dialog.Caption(), "Ucitavanje ukrstenice");
  EXPECT_EQ(dialog.txt_ucit.Text(), "proba.qvm");
  EXPECT_FALSE(dialog.txt_ucit.Enabled());
  EXPECT_EQ(Description(), "Naziv: Proba|Dimenzije:  X=  3 Y=  3|Opis: Tri puta tri");
}

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
  WriteFile("kratka.qvm", "\r\nNaziv: Kratka\r\n");
  fs::create_symlink(folder() / "nema-je", folder() / "veza.qvm");
  ASSERT_EQ(mkfifo((folder() / "cev.qvm").c_str(), 0600), 0);
  WriteFile("bajtovi.qvm", std::string("\0\x01\xFF\xFE:\x80", 6));
  Load("proba.qvm");
  const Crossword before = glavni;
  for (const std::string name : {"veza.qvm", "cev.qvm", "bajtovi.qvm", "kratka.qvm"}) {
    SCOPED_TRACE(name);
    Load(name);
    EXPECT_EQ(Description(), name == "kratka.qvm" ? "Naziv: Kratka|Dimenzije:  |Opis: "
                                                  : "Naziv: |Dimenzije:  |Opis: ");
    ExpectClosed();
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    EXPECT_EQ(static_cast<const Crossword&>(glavni), before);
    EXPECT_EQ(PixelOf("pic_ukr", 26, 26), 0xFFFF7FU) << "the word stays marked";
  }
  ClickCell(1, 3);
  EXPECT_EQ(PixelOf("pic_ukr", 26, 26), 0xFFFFFFU);
  EXPECT_EQ(PixelOf("pic_ukr", 26, 82), 0xFFFF7FU) << "the next click marks one word";
}

TEST_F(LoadDialogTest, CancelGoesBackToTheCrosswordInTheGrid) {
  Load("proba.qvm");
  ClickButton("cmd_glavni(3)");
  Choose("velika.qvm");
  const std::string other = ReadFile("velika.qvm");
  ClickButton("cmd_ucit(1)");
  ExpectClosed();
  ClickButton("cmd_glavni(1)");
  EXPECT_EQ(ReadFile("velika.qvm"), other);
  EXPECT_NE(ReadFile("proba.qvm").find("MM$0$1$1$00"), std::string::npos) << "a solved cell";
}

TEST_F(LoadDialogTest, EnterAndADoubleClickInTheListLoad) {
  auto* list = Widget<QAbstractItemView>("File1");
  Choose("proba.qvm");
  QTest::keyClick(list, Qt::Key_A);
  EXPECT_TRUE(frm_ucit_snimi->Visible());
  QTest::keyClick(list, Qt::Key_Return);
  ExpectClosed();
  EXPECT_EQ(frm_glavni->Caption(), "Vostrand KALVON Multimedia (proba.qvm)");
  Choose("proba.qvm");
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                     list->visualRect(list->currentIndex()).center());
  ExpectClosed();
}

TEST_F(LoadDialogTest, AnotherFolderEmptiesTheNameAndShowsItsFiles) {
  Choose("proba.qvm");
  fs::create_directory(folder() / "Nova Godina");
  fs::copy_file(folder() / "proba.qvm", folder() / "Nova Godina" / "Zima.QVM");
  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\nova godina");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "");
  EXPECT_EQ(Description(), "");
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
  EXPECT_EQ(frm_ucit_snimi->Drive1.Drive(), "c:\\");
  EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), "c:\\");
  EXPECT_EQ(frm_ucit_snimi->txt_ucit.Text(), "");
  ClickButton("cmd_ucit(1)");
  ClickButton("cmd_glavni(0)");
  EXPECT_EQ(Widget("frm_ucit_snimi")->focusWidget(), Widget("Dir1")) << "there is no file";
  ClickButton("cmd_ucit(0)");
  ExpectClosed();
}

}  // namespace
}  // namespace kalvon::testing
