// SPDX-License-Identifier: MIT
#include "files/host_paths.h"

#include <gtest/gtest.h>

#include <map>

#include "files/drives.h"
#include "files/folder_entries.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using files::HostPath;
using files::LogicPath;
using files::pass_over;
using Names = std::vector<std::string>;
using Rows = std::map<std::string, std::string>;
using std::string_literals::operator""s;

class HostPathsTest : public testing::Test {
 public:
  ~HostPathsTest() override { files::MountTable("/proc/self/mounts"); }

 protected:
  void Mount(const std::string& table) const {
    folder_.Put("mounts", table);
    files::MountTable(folder_.Host("mounts"));
  }

  ScratchFolder folder_;
};

TEST_F(HostPathsTest, FindsEachComponentWithoutRegardToCase) {
  fs::create_directories(folder_.Host("Ukrštenice Čačak/Zima"));
  folder_.Put("Ukrštenice Čačak/Zima/Zima1003.QVM", "");
  folder_.Put("Ruža\xFF.qvm", "");
  for (const auto& [asked, found] :
       Rows{{"ukrštenice čačak\\ZIMA\\zima1003.qvm", "Ukrštenice Čačak/Zima/Zima1003.QVM"},
            {"nema\\.\\..\\UKRŠTENICE ČAČAK\\zima\\New.ini\\", "Ukrštenice Čačak/Zima/New.ini"},
            {"RUža\xFF.QVM", "Ruža\xFF.qvm"},
            {"RUŽA\xFF.QVM", "RUŽA\xFF.QVM"}})  // What is no text has letters of ASCII alone.
    EXPECT_EQ(HostPath(folder_.Logic(asked)), folder_.Host(found));
}

TEST_F(HostPathsTest, PrefersTheExactNameOfThoseThatThereAre) {
  const auto expect = [this](const char* found) {
    EXPECT_EQ(HostPath(folder_.Logic("zima.qvm")), folder_.Host(found));
  };
  expect("zima.qvm");
  folder_.Put("zima.QVM", "");
  expect("zima.QVM");
  fs::rename(folder_.Host("zima.QVM"), folder_.Host("zimA.qvm"));
  folder_.Put("Zima.qvm", "");
  expect("Zima.qvm");
  folder_.Put("zima.qvm", "");
  expect("zima.qvm");
}

TEST_F(HostPathsTest, LeadsThroughDrivesBothWays) {
  Mount("x / ext4\nx /mnt/cd iso\nx /mnt/cd/unutra iso\n");
  for (const auto& [asked, found] : Rows{{"c:", "/"},
                                         {"C:\\..\\.\\..\\mnt\\", "/mnt"},
                                         {"D:\\x", "/mnt/cd/x"},
                                         {"d:\\..\\..", "/mnt/cd"},
                                         {"c:\\mnt\\cd\\x", "/mnt/cd/x"}})
    EXPECT_EQ(HostPath(asked), found);
  for (const auto& [asked, found] : Rows{{"//tmp/./x/../y/", "c:\\tmp\\y"},
                                         {"/", "c:\\"},
                                         {"/mnt/cd", "d:\\"},
                                         {"/mnt/cd/unutra/x", "e:\\x"},
                                         {"/mnt/cdrom", "c:\\mnt\\cdrom"}})
    EXPECT_EQ(LogicPath(asked), found);
  EXPECT_EQ(files::PathOnDisk("C:\\mnt\\cd\\"), "c:\\mnt\\cd") << "on the drive that it names";
}

TEST_F(HostPathsTest, RefusesWhatIsNoPath) {
  Mount("");
  for (const std::string& path :
       {""s, "c"s, "q:\\x"s, "c:x"s, "\\x"s, "/tmp"s, "c:\\tmp/x"s, "c:\\a\0b"s, "ć:\\"s,
        "c:" + std::string(1'000'000, '\\') + std::string(5000, 'x')})
    EXPECT_EQ(pass_over([&] { HostPath(path); }), 76) << path.substr(0, 20);
  for (const char* path : {"tmp", "/tmp/a\\b"})
    EXPECT_EQ(pass_over([&] { LogicPath(path); }), 76) << path;
}

TEST_F(HostPathsTest, GivesLettersToMedia) {
  std::string table =
      "x /run/media/ana/MOJ\\040DISK\\134A vfat rw 0 0\n"
      "x /media/ana/\\304\\214a\\304\\215ak\\040USB vfat rw 0 0\n"
      "tmpfs /mediaplayer tmpfs rw 0 0\nx /mnt/cd iso9660 ro 0 0\nx /mnt/cd iso9660 ro 0 0\n";
  Mount(table);
  std::string rows;
  for (const files::Drive& drive : files::Drives()) rows += drive.row;
  EXPECT_EQ(rows, "c: [/]d: [/media/ana/Čačak USB]e: [/mnt/cd]");
  for (char name = 'a'; name <= 'z'; ++name)
    table += "x /mnt/" + std::string(1, name) + " vfat rw 0 0\n";
  Mount(table);
  EXPECT_EQ(files::Drives().back().letter, 'z');
}

TEST_F(HostPathsTest, ListsAFolderAsTheDiskHasIt) {
  for (const char* name : {"b.qvm", "Čas", "a.qvm", "A.qvm", ".skriven", "a\\b"})
    folder_.Put(name, "");
  fs::create_directory(folder_.Host("Fascikla.qvm"));
  fs::create_symlink("Fascikla.qvm", folder_.Host("Druga"));
  fs::create_symlink("nema", folder_.Host("visi"));
  const files::FolderEntries entries = files::ReadFolder(folder_.Host());
  EXPECT_EQ(entries.folders, (Names{"Druga", "Fascikla.qvm"}));
  EXPECT_EQ(entries.files, (Names{"A.qvm", "a.qvm", "b.qvm", "visi", "Čas"}));
}

}  // namespace
