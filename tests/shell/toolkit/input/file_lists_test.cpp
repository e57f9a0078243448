// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/file_lists.h"

#include <gtest/gtest.h>

#include <QListView>
#include <QTest>
#include <map>

#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "shell/toolkit/windows/form.h"

namespace toolkit::testing {

using files::pass_over;

class FileListsTest : public ::testing::Test {
 protected:
  FileListsTest() {
    form.Show();
    folder_list.Change = [this] { raised += folder_list.Path() + ' '; };
    file_list.Click = [this] { raised += std::to_string(file_list.ListIndex()) + ' '; };
    file_list.DblClick = [this] { raised += "double "; };
    file_list.KeyPress = [this](int& code) {
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
  /// A window system reports the second of two clicks as a MouseDClick.
  std::string Click(QListView* list, int row, QTest::MouseAction action = QTest::MouseClick,
                    Qt::MouseButton button = Qt::LeftButton) {
    const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseEvent(action, list->viewport(), button, {}, place);
    return Raised();
  }

  ScratchFolder folder;
  struct ListForm : Form {
    ListForm() : Form({"lists", "", Border::sizeable, Scale::pixels, 9000, 6000}) {}
  } form;
  FolderList folder_list{form, {"folders", {0, 30, 200, 300}, 1}};
  FileList file_list{form, {"files", {210, 30, 200, 300}, 2}};
  QListView* const folders = form.InnerWidget()->findChild<QListView*>(QStringLiteral("folders"));
  QListView* const rows = form.InnerWidget()->findChild<QListView*>(QStringLiteral("files"));
  std::string raised;
};

TEST_F(FileListsTest, ShowsTheWayToTheFolderAndOpensOthers) {
  std::filesystem::create_directories(folder.Host("Koren/dete"));
  const std::string path = folder.Logic("Koren");
  for (const auto& same : {files::LowerCase(path) + "\\", path}) folder_list.Path(same);
  EXPECT_EQ(Raised(), path + ' ') << "once: then it is shown";
  std::string shown;
  const int last = folders->model()->rowCount() - 1;
  for (int row = 1; row <= last; ++row)
    shown += '\\' + folders->model()->index(row, 0).data().toString().toStdString();
  EXPECT_EQ("c:" + shown, path + "\\dete");
  EXPECT_EQ(folders->currentIndex().row(), last - 1);
  EXPECT_EQ(pass_over([&] { folder_list.Path(path + "\\nema"); }), 76);
  EXPECT_EQ(Click(folders, 0, QTest::MouseDClick), "") << "the first of the two hit another row";
  EXPECT_EQ(Click(folders, last), "");
  EXPECT_EQ(Click(folders, last, QTest::MouseDClick), path + "\\dete ");
  Key(folders, Qt::Key_Up);
  EXPECT_EQ(Key(folders, Qt::Key_Return), path + ' ');
  std::filesystem::remove(folder.Host("Koren/dete"));
  Click(folders, last);
  EXPECT_EQ(Click(folders, last, QTest::MouseDClick), "") << "it stays closed";
}

TEST_F(FileListsTest, FiltersFilesWithoutRegardToCase) {
  for (const char* name : {"a.b.txt", "bezTacke", "qvm", "zima001.QVM", "z\xFF.qvm", "Čas.qvm",
                           ".skriven.qvm", "a\\b.qvm"})
    folder.Put(name, "");
  std::filesystem::create_directory_symlink(".", folder.Host("Fascikla.qvm"));
  file_list.Path(folder.Logic());
  for (const auto& [pattern, expected] : std::map<std::string, std::string>{
           {"*.qvm", "zima001.QVM z\xFF.qvm Čas.qvm "},
           {"???.QVM", "Čas.qvm "},
           {"*.b*.t?t;bez*", "a.b.txt bezTacke "},
           {"zima00*01.q*v*m; QVM ", "qvm "},
           {"[a-z]*", ""},
           {"*.*", "a.b.txt bezTacke qvm zima001.QVM z\xFF.qvm Čas.qvm "}}) {
    file_list.Pattern(pattern);
    std::string names;
    for (int i = 0; i < file_list.ListCount(); ++i) names += file_list.List(i) + ' ';
    EXPECT_EQ(names, expected) << pattern;
  }
}

TEST_F(FileListsTest, SelectsFilesByCodeMouseAndKey) {
  for (const char* name : {"alfa", "beta", "gama"}) folder.Put(name, "");
  file_list.Path(folder.Logic());
  file_list.SetFocus();
  QApplication::processEvents();
  for (const int row : {1, 1, -1}) file_list.ListIndex(row);
  EXPECT_EQ(Raised(), "1 1 -1 ");
  for (const int row : {-2, 3}) EXPECT_EQ(pass_over([&] { file_list.ListIndex(row); }), 380);
  EXPECT_EQ(Click(rows, 0, QTest::MouseClick, Qt::RightButton), "0 ");
  EXPECT_EQ(Click(rows, 0, QTest::MouseDClick), "") << "the first of the two was no left one";
  EXPECT_EQ(Click(rows, 0), "0 ");
  EXPECT_EQ(Click(rows, 0, QTest::MouseDClick), "double ");
  EXPECT_EQ(Click(rows, 2, QTest::MouseDClick), "2 ") << "the first of the two hit another row";
  EXPECT_EQ(Click(rows, 9), "");
  const std::pair<Qt::Key, const char*> keys[] = {
      {Qt::Key_Home, "0 "},     {Qt::Key_Home, ""},          {Qt::Key_G, "key 103 "},
      {Qt::Key_B, "key 98 1 "}, {Qt::Key_Return, "key 13 "}, {Qt::Key_Delete, ""}};
  for (const auto& [key, expected] : keys) EXPECT_EQ(Key(rows, key), expected);
  file_list.Path(folder.Logic());
  EXPECT_EQ(file_list.ListIndex(), -1) << "a folder that is read anew has no row selected";
}

}  // namespace toolkit::testing
