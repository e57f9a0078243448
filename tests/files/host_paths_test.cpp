// SPDX-License-Identifier: MIT
#include "files/host_paths.h"

#include <gtest/gtest.h>

#include <map>

#include "files/drives.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using files::HostPath;
using files::LogicPath;
using files::pass_over;
using Rows = std::map<std::string, std::string>;
using namespace std::string_literals;

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
  for (const char* name : {"Ukrštenice Čačak/Zima/Zima1003.QVM", "Ruža\xFF.qvm"})
    folder_.Put(name, "");
  for (const auto& [asked, found] :
       Rows{{"ukrštenice čačak\\ZIMA\\zima1003.qvm", "Ukrštenice Čačak/Zima/Zima1003.QVM"},
            {"nema\\.\\..\\UKRŠTENICE ČAČAK\\zima\\New.ini\\", "Ukrštenice Čačak/Zima/New.ini"},
            {"RUža\xFF.QVM", "Ruža\xFF.qvm"},
            {"RUŽA\xFF.QVM", "RUŽA\xFF.QVM"}})  // What is no text has letters of ASCII alone.
    EXPECT_EQ(HostPath(folder_.Logic(asked)), folder_.Host(found));
  for (const char* name : {"zimA.qvm", "Zima.qvm"}) folder_.Put(name, "");
  EXPECT_EQ(HostPath(folder_.Logic("zima.qvm")), folder_.Host("Zima.qvm"));
  folder_.Put("zima.qvm", "");
  EXPECT_EQ(HostPath(folder_.Logic("zima.qvm")), folder_.Host("zima.qvm"));
}

TEST_F(HostPathsTest, LeadsThroughDrivesBothWays) {
  Mount("x / ext4\nx /mnt/cd iso\nx /mnt/cd/unutra iso\n");
  for (const auto& [asked, found] : Rows{{"c:", "/"},
                                         {R"(C:\..\.\..\mnt\)", "/mnt"},
                                         {R"(d:\..\..)", "/mnt/cd"},
                                         {R"(c:\mnt\cd\x)", "/mnt/cd/x"}})
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
  for (const std::string& path : {""s, "c"s, "q:\\x"s, "c:x"s, "\\x"s, "/tmp"s, "c:\\tmp/x"s,
                                  "c:\\a\0b"s, "ć:\\"s, "c:\\" + std::string(5000, 'x')})
    EXPECT_EQ(pass_over([&] { HostPath(path); }), 76) << path.substr(0, 20);
  for (const char* path : {"tmp", "/tmp/a\\b"})
    EXPECT_EQ(pass_over([&] { LogicPath(path); }), 76) << path;
}

TEST_F(HostPathsTest, GivesLettersToMedia) {
  Mount(
      "x /run/media/ana/MOJ\\040DISK\\134A vfat rw 0 0\n"
      "x /media/ana/\\304\\214a\\304\\215ak\\040USB vfat rw 0 0\n"
      "tmpfs /mediaplayer tmpfs rw 0 0\nx /mnt/cd iso9660 ro 0 0\nx /mnt/cd iso9660 ro 0 0\n");
  std::string rows;
  for (const files::Drive& drive : files::Drives()) rows += drive.row;
  EXPECT_EQ(rows, "c: [/]d: [/media/ana/Čačak USB]e: [/mnt/cd]");
}

}  // namespace
