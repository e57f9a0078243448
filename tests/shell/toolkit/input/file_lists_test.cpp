// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/file_lists.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QListView>
#include <QTest>
#include <map>

#include "files/drives.h"
#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "shell/toolkit/windows/form.h"

namespace toolkit::testing {
namespace {

using files::pass_over;

class ListForm : public Form {
 public:
  ListForm() : Form({"lists", "", Border::sizeable, Scale::pixels, 9000, 6000}) { Show(); }

  DriveList drives{*this, {"drives", {0, 0, 200, 20}, 0}};
  FolderList folders{*this, {"folders", {0, 30, 200, 300}, 1}};
  FileList files{*this, {"files", {210, 30, 200, 300}, 2}};
};

class FileListsTest : public ::testing::Test {
 public:
  ~FileListsTest() override { files::MountTable("/proc/self/mounts"); }

 protected:
  FileListsTest() {
    form.drives.Change = [this] { raised += form.drives.Drive() + ' '; };
    form.folders.Change = [this] { raised += form.folders.Path() + ' '; };
    form.files.Click = [this] {
      raised += "click " + std::to_string(form.files.ListIndex()) + ' ';
    };
    form.files.DblClick = [this] { raised += "double "; };
    form.files.KeyPress = [this](int& code) {
      raised += "key " + std::to_string(code) + ' ';
      if (code == 'g') code = 0;
    };
  }

  // What has been raised, since the last look or by what the user does.
  std::string Raised() { return std::exchange(raised, {}); }
  std::string Key(QWidget* list, Qt::Key key) {
    QTest::keyClick(list, key);
    return Raised();
  }
  std::string Click(QListView* list, int row, Qt::MouseButton button = Qt::LeftButton,
                    QTest::MouseAction action = QTest::MouseClick) {
    const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseEvent(action, list->viewport(), button, {}, place);
    return Raised();
  }
  /// The second of two clicks, as a window system reports it.
  std::string Second(QListView* list, int row) {
    return Click(list, row, Qt::LeftButton, QTest::MouseDClick);
  }

  ScratchFolder folder;
  ListForm form;
  QListView* const folders = form.InnerWidget()->findChild<QListView*>(QStringLiteral("folders"));
  QListView* const rows = form.InnerWidget()->findChild<QListView*>(QStringLiteral("files"));
  std::string raised;
};

TEST_F(FileListsTest, ListsTheDrivesOfTheMomentAndChoosesOne) {
  folder.Put("mounts", "x /mnt/kalvon-nema vfat rw 0 0\n");
  files::MountTable(folder.Host("mounts"));
  auto* const box = form.InnerWidget()->findChild<QComboBox*>();
  box->showPopup();
  EXPECT_EQ(box->currentText(), QStringLiteral("c: [/]"));
  QTest::keyClick(box->view(), Qt::Key_Down);
  EXPECT_EQ(Key(box->view(), Qt::Key_Return), "d:\\ ");
  form.drives.Drive("C: [/]");
  form.drives.Drive("c:");
  EXPECT_EQ(box->currentIndex(), 0);
  EXPECT_EQ(Raised(), "c:\\ ") << "once: then it is shown";
  for (const char* drive : {"", "c", "q:", "cc:", "/:", "d:\\"})
    EXPECT_EQ(pass_over([&] { form.drives.Drive(drive); }), 68) << drive;
}

TEST_F(FileListsTest, ShowsTheWayToTheFolderAndOpensOthers) {
  std::filesystem::create_directories(folder.Host("Koren/dete"));
  const std::string path = folder.Logic("Koren");
  form.folders.Path(files::LowerCase(path) + "\\");
  form.folders.Path(path);
  EXPECT_EQ(Raised(), path + ' ') << "once: then it is shown";
  std::string shown;
  const int last = folders->model()->rowCount() - 1;
  for (int row = 1; row <= last; ++row)
    shown += '\\' + folders->model()->index(row, 0).data().toString().toStdString();
  EXPECT_EQ("c:" + shown, path + "\\dete");
  EXPECT_EQ(folders->currentIndex().row(), last - 1);
  EXPECT_EQ(pass_over([&] { form.folders.Path(path + "\\nema"); }), 76);

  EXPECT_EQ(Second(folders, 0), "") << "the first of the two hit another row";
  EXPECT_EQ(Click(folders, last), "");
  EXPECT_EQ(Second(folders, last), path + "\\dete ");
  Key(folders, Qt::Key_Up);
  EXPECT_EQ(Key(folders, Qt::Key_Return), path + ' ');
  std::filesystem::remove(folder.Host("Koren/dete"));
  Click(folders, last);
  EXPECT_EQ(Second(folders, last), "") << "it stays closed";
  Key(folders, Qt::Key_Up);
  EXPECT_EQ(Key(folders, Qt::Key_Enter), path + ' ');
  EXPECT_EQ(folders->model()->rowCount(), last) << "what is new in it is seen";
}

TEST_F(FileListsTest, FiltersFilesWithoutRegardToCase) {
  for (const char* name : {"a.b.txt", "bezTacke", "qvm", "zima001.QVM", "z\xFF.qvm", "Čas.qvm"})
    folder.Put(name, "");
  form.files.Path(folder.Logic());
  for (const auto& [pattern, expected] : std::map<std::string, std::string>{
           {"*.qvm", "zima001.QVM z\xFF.qvm Čas.qvm "},
           {"???.QVM", "Čas.qvm "},
           {"čAS.*", "Čas.qvm "},
           {"*.b*.t?t;bez*", "a.b.txt bezTacke "},
           {"zima00*01.q*v*m; QVM ", "qvm "},
           {"", ""},
           {"[a-z]*", ""},
           {"*.*", "a.b.txt bezTacke qvm zima001.QVM z\xFF.qvm Čas.qvm "}}) {
    form.files.Pattern(pattern);
    std::string names;
    for (int i = 0; i < form.files.ListCount(); ++i) names += form.files.List(i) + ' ';
    EXPECT_EQ(names, expected) << pattern;
  }
  EXPECT_EQ(form.files.List(-1) + form.files.List(6), "");
}

TEST_F(FileListsTest, SelectsFilesByCodeMouseAndKey) {
  for (const char* name : {"alfa", "beta", "gama"}) folder.Put(name, "");
  form.files.Path(folder.Logic());
  form.files.SetFocus();
  QApplication::processEvents();
  EXPECT_EQ(form.files.ListIndex(), -1);
  for (const int row : {1, 1, -1}) form.files.ListIndex(row);
  EXPECT_EQ(Raised(), "click 1 click 1 click -1 ");
  for (const int row : {-2, 3}) EXPECT_EQ(pass_over([&] { form.files.ListIndex(row); }), 380);

  EXPECT_EQ(Click(rows, 0, Qt::RightButton), "click 0 ");
  EXPECT_EQ(Click(rows, 0, Qt::RightButton), "");
  EXPECT_EQ(Second(rows, 0), "") << "the first of the two was no left one";
  EXPECT_EQ(Click(rows, 0), "click 0 ");
  EXPECT_EQ(Second(rows, 0), "double ");
  EXPECT_EQ(Second(rows, 2), "click 2 ") << "the first of the two hit another row";
  EXPECT_EQ(Click(rows, 9), "");
  EXPECT_EQ(Key(rows, Qt::Key_Up), "click 1 ");
  EXPECT_EQ(Key(rows, Qt::Key_Home), "click 0 ");
  EXPECT_EQ(Key(rows, Qt::Key_Home), "");
  EXPECT_EQ(Key(rows, Qt::Key_G), "key 103 ") << "dropped";
  EXPECT_EQ(Key(rows, Qt::Key_B), "key 98 click 1 ");
  EXPECT_EQ(Key(rows, Qt::Key_Return), "key 13 ");
  EXPECT_EQ(Key(rows, Qt::Key_Delete), "");
  form.files.Path(folder.Logic());
  EXPECT_EQ(form.files.ListIndex(), -1) << "a folder that is read anew has no row selected";
}

}  // namespace
}  // namespace toolkit::testing
