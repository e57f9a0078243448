// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/file_lists.h"
#include "files/drives.h"
#include "files/folder_entries.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QtTest>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "shell/toolkit/windows/form.h"

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

class ListForm : public toolkit::Form {
 public:
  ListForm() : Form({"lists", "", toolkit::Border::sizeable, toolkit::Scale::pixels, 9000, 6000}) {}

  toolkit::DriveList drives{*this, {"drives", {0, 0, 200, 20}, 0}};
  toolkit::FolderList folders{*this, {"folders", {0, 30, 200, 300}, 1}};
  toolkit::FileList files{*this, {"files", {210, 30, 200, 300}, 2}};
};

class FileListsTest : public testing::Test {
 public:
  ~FileListsTest() override { files::MountTable("/proc/self/mounts"); }

 protected:
  FileListsTest() {
    form_.drives.Change = [this] { events_.push_back("drive " + form_.drives.Drive()); };
    form_.folders.Change = [this] { events_.push_back("folder " + form_.folders.Path()); };
    form_.files.Click = [this] {
      events_.push_back("click " + std::to_string(form_.files.ListIndex()));
    };
    form_.files.DblClick = [this] { events_.emplace_back("double click"); };
    form_.files.KeyPress = [this](int& code) {
      events_.push_back("key " + std::to_string(code));
      if (drop_keys_) code = 0;
    };
  }

  /// What has been raised since the last look.
  Strings Events() { return std::exchange(events_, {}); }

  template <typename Widget>
  Widget* Find(const char* name) {
    return form_.InnerWidget()->findChild<Widget*>(QString::fromUtf8(name));
  }
  QListView* FilesView() { return Find<QListView>("files"); }

  Strings Rows(const char* name) {
    const QAbstractItemModel& model = *Find<QAbstractItemView>(name)->model();
    Strings rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      rows.push_back(model.index(row, 0).data().toString().toStdString());
    }
    return rows;
  }

  static QPoint Middle(QListView* view, int row) {
    return view->visualRect(view->model()->index(row, 0)).center();
  }
  void Press(QListView* view, int row) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Middle(view, row));
  }
  /// Two clicks, as a window system reports them.
  void DoubleClick(QListView* view, int row) {
    Press(view, row);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, Middle(view, row));
  }

  void ShowFiles(const Strings& names) {
    for (const std::string& name : names) folder_.Put(name, "");
    form_.files.Path(folder_.Logic());
    form_.Show();
    Events();
  }
  void MountFolders(const Strings& points) {
    std::string table;
    for (const std::string& point : points) table += "x " + point + " vfat rw 0 0\n";
    folder_.Put("mounts", table);
    files::MountTable(folder_.Host("mounts"));
  }

  ScratchFolder folder_;
  ListForm form_;
  Strings events_;
  bool drop_keys_ = false;
};

TEST_F(FileListsTest, ChoosesADriveByCodeInSilenceIfItIsShown) {
  form_.drives.Drive("C: [/]");
  EXPECT_EQ(Events(), Strings{});
  EXPECT_EQ(form_.drives.Drive(), "c:\\");
  MountFolders({"/mnt/kalvon-nema"});
  for (const char* drive : {"", "c", "q:", "cc:", "/:", "d:\\"}) {
    EXPECT_EQ(files::pass_over([&] { form_.drives.Drive(drive); }), 68) << drive;
  }
  EXPECT_EQ(form_.drives.Drive(), "c:\\");
}

TEST_F(FileListsTest, ListsTheDrivesOfTheMomentWhenItDropsDown) {
  MountFolders({"/mnt/kalvon-nema"});
  form_.Show();
  auto* const box = Find<QComboBox>("drives");
  box->showPopup();
  ASSERT_EQ(box->count(), 2);
  EXPECT_EQ(box->currentText(), QStringLiteral("c: [/]"));
  QTest::keyClick(box->view(), Qt::Key_Down);
  QTest::keyClick(box->view(), Qt::Key_Return);
  EXPECT_EQ(Events(), Strings{"drive d:\\"});
  form_.drives.Drive("c:\\");
  EXPECT_EQ(Events(), Strings{"drive c:\\"});
  EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(FileListsTest, ShowsTheWayToTheFolderAndWhatIsInIt) {
  for (const char* name : {"Ćošak", "alfa", "Beta", ".skrivena"}) {
    fs::create_directories(folder_.Host("Koren/") + name);
  }
  folder_.Put("Koren/datoteka", "");
  form_.folders.Path(files::LowerCase(folder_.Logic("Koren")) + "\\");

  const std::string path = folder_.Logic("Koren");
  EXPECT_EQ(form_.folders.Path(), path);
  EXPECT_EQ(Events(), Strings{"folder " + path});
  const Strings rows = Rows("folders");
  const Strings ends(rows.end() - 5, rows.end());
  EXPECT_EQ(rows.front(), "c:\\");
  EXPECT_EQ(ends, (Strings{folder_.HostPath().substr(folder_.HostPath().rfind('/') + 1), "Koren",
                           "alfa", "Beta", "Ćošak"}));

  form_.folders.Path(path);
  EXPECT_EQ(files::pass_over([&] { form_.folders.Path(path + "\\nema"); }), 76);
  EXPECT_EQ(form_.folders.Path(), path);
  EXPECT_EQ(Rows("folders"), rows);
  EXPECT_EQ(Events(), Strings{});
}

TEST_F(FileListsTest, OpensFoldersByMouseAndKey) {
  fs::create_directories(folder_.Host("Koren/dete"));
  form_.folders.Path(folder_.Logic("Koren"));
  form_.Show();
  Events();
  auto* const view = Find<QListView>("folders");
  const int last = static_cast<int>(Rows("folders").size()) - 1;

  Press(view, last);
  EXPECT_EQ(Events(), Strings{});
  DoubleClick(view, last);
  EXPECT_EQ(Events(), Strings{"folder " + folder_.Logic("Koren\\dete")});
  QTest::keyClick(view, Qt::Key_Up);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_EQ(Events(), Strings{"folder " + folder_.Logic("Koren")});

  fs::create_directory(folder_.Host("Koren/novo"));
  QTest::keyClick(view, Qt::Key_Enter);
  EXPECT_EQ(Events(), Strings{"folder " + folder_.Logic("Koren")});
  EXPECT_EQ(Rows("folders").back(), "novo");

  fs::remove(folder_.Host("Koren/novo"));
  DoubleClick(view, last + 1);
  EXPECT_EQ(Events(), Strings{});
  EXPECT_EQ(form_.folders.Path(), folder_.Logic("Koren"));
}

TEST_F(FileListsTest, FiltersFilesWithoutRegardToCase) {
  const std::string no_text = "z\xFF.qvm";
  for (const std::string& name :
       {std::string("zima001.QVM"), std::string("Čas.qvm"), std::string("a.b.txt"),
        std::string("bezTacke"), std::string("qvm"), no_text}) {
    folder_.Put(name, "");
  }
  form_.files.Path(folder_.Logic());
  struct Row {
    std::string pattern;
    Strings names;
  };
  const std::vector<Row> rows = {
      {"*.qvm", {"zima001.QVM", no_text, "Čas.qvm"}},
      {"???.QVM", {"Čas.qvm"}},
      {"čAS.*", {"Čas.qvm"}},
      {"*.b*.t?t;bez*", {"a.b.txt", "bezTacke"}},
      {"zima00*01.q*v*m; QVM ", {"qvm"}},
      {"", {}},
      {"[a-z]*", {}},
      {"*.*", {"a.b.txt", "bezTacke", "qvm", "zima001.QVM", no_text, "Čas.qvm"}},
  };
  for (const Row& row : rows) {
    form_.files.Pattern(row.pattern);
    Strings names;
    for (int i = 0; i < form_.files.ListCount(); ++i) names.push_back(form_.files.List(i));
    EXPECT_EQ(names, row.names) << row.pattern;
  }
  EXPECT_EQ(form_.files.List(-1) + form_.files.List(6), "");
}

TEST_F(FileListsTest, SelectsARowByCode) {
  ShowFiles({"a", "b", "c"});
  EXPECT_EQ(form_.files.ListIndex(), -1);
  form_.files.ListIndex(1);
  form_.files.ListIndex(1);
  EXPECT_EQ(Events(), (Strings{"click 1", "click 1"}));
  EXPECT_EQ(files::pass_over([&] { form_.files.ListIndex(3); }), 380);
  form_.files.ListIndex(-1);
  EXPECT_EQ(Events(), Strings{"click -1"});
  EXPECT_FALSE(FilesView()->selectionModel()->hasSelection());

  folder_.Put("0", "");
  form_.files.Path(folder_.Logic());
  EXPECT_EQ(form_.files.ListCount(), 4);
  EXPECT_EQ(form_.files.ListIndex(), -1);
  EXPECT_EQ(files::pass_over([&] { form_.files.Path(folder_.Logic("nema")); }), 76);
  EXPECT_EQ(form_.files.ListCount(), 4);
  EXPECT_EQ(Events(), Strings{});
}

TEST_F(FileListsTest, SelectsARowByMouseAndTellsItOnce) {
  ShowFiles({"a", "b", "c"});
  Press(FilesView(), 1);
  EXPECT_EQ(Events(), Strings{"click 1"});
  QTest::mouseClick(FilesView()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    Middle(FilesView(), 1));
  EXPECT_EQ(Events(), Strings{"click 1"});
  QTest::mouseClick(FilesView()->viewport(), Qt::LeftButton, {},
                    Middle(FilesView(), 2) + QPoint(0, 100));
  EXPECT_EQ(Events(), Strings{});
  EXPECT_EQ(form_.files.ListIndex(), 1);
}

TEST_F(FileListsTest, TellsTheFirstClickOfTwo) {
  ShowFiles({"a", "b", "c"});
  DoubleClick(FilesView(), 2);
  EXPECT_EQ(Events(), (Strings{"click 2", "double click"}));
  // The second press of a quick pair can hit another row.
  Press(FilesView(), 0);
  QTest::mouseDClick(FilesView()->viewport(), Qt::LeftButton, {}, Middle(FilesView(), 1));
  EXPECT_EQ(Events(), (Strings{"click 0", "click 1"}));
}

TEST_F(FileListsTest, SelectsARowByKey) {
  ShowFiles({"alfa", "beta", "gama"});
  form_.files.SetFocus();
  QApplication::processEvents();
  EXPECT_EQ(form_.files.ListIndex(), -1);
  QTest::keyClick(FilesView(), Qt::Key_Down);
  QTest::keyClick(FilesView(), Qt::Key_Down);
  QTest::keyClick(FilesView(), Qt::Key_End);
  QTest::keyClick(FilesView(), Qt::Key_End);
  EXPECT_EQ(Events(), (Strings{"click 0", "click 1", "click 2"}));
  QTest::keyClick(FilesView(), Qt::Key_B);
  EXPECT_EQ(Events(), (Strings{"key 98", "click 1"}));
  drop_keys_ = true;
  QTest::keyClick(FilesView(), Qt::Key_G);
  EXPECT_EQ(Events(), Strings{"key 103"});
}

TEST_F(FileListsTest, TellsTheCharactersOfKeys) {
  ShowFiles({"alfa"});
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Delete}) {
    QTest::keyClick(FilesView(), key);
  }
  EXPECT_EQ(Events(), (Strings{"key 13", "key 13", "key 27"}));
}

TEST_F(FileListsTest, LetsAHandlerFillTheListAnew) {
  ShowFiles({"a", "b"});
  form_.files.Click = [this] { form_.files.Path(folder_.Logic()); };
  Press(FilesView(), 1);
  EXPECT_EQ(form_.files.ListIndex(), -1);
  QTest::keyClick(FilesView(), Qt::Key_Down);
  EXPECT_EQ(form_.files.ListIndex(), -1);
}

}  // namespace
