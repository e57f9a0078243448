// SPDX-License-Identifier: MIT
#include "files/host_paths.h"
#include "files/drives.h"
#include "files/folder_entries.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using files::HostPath;
using files::LogicPath;

class HostPathsTest : public testing::Test {
 public:
  ~HostPathsTest() override { files::MountTable("/proc/self/mounts"); }

 protected:
  [[nodiscard]] std::string Host(const std::string& name) const { return folder_.Host(name); }
  [[nodiscard]] std::string Logic(const std::string& name = "") const {
    return folder_.Logic(name);
  }
  void MakeFile(const std::string& name) const { folder_.Put(name, name); }
  void MakeFolder(const std::string& name) const { fs::create_directories(Host(name)); }
  void Mount(const std::string& table) const {
    folder_.Put("mounts", table);
    files::MountTable(Host("mounts"));
  }

 private:
  ScratchFolder folder_;
};

TEST_F(HostPathsTest, FindsEachComponentWithoutRegardToCase) {
  MakeFolder("Ukrštenice Čačak/Zima");
  MakeFile("Ukrštenice Čačak/Zima/Zima1003.QVM");

  const std::string found = Host("Ukrštenice Čačak/Zima/Zima1003.QVM");
  EXPECT_EQ(HostPath(Logic("ukrštenice čačak\\ZIMA\\zima1003.qvm")), found);
  EXPECT_EQ(HostPath(files::LowerCase(LogicPath(found))), found);
  EXPECT_EQ(HostPath(Logic("UKRŠTENICE ČAČAK\\zima\\New.ini")),
            Host("Ukrštenice Čačak/Zima/New.ini"));
  EXPECT_EQ(files::PathOnDisk(Logic("ukrštenice čačak\\zima\\")), Logic("Ukrštenice Čačak\\Zima"));
}

TEST_F(HostPathsTest, PrefersTheExactName) {
  for (const char* name : {"zima.qvm", "Zima.qvm", "ZIMA.QVM"}) MakeFile(name);
  for (const char* name : {"zima.qvm", "Zima.qvm", "ZIMA.QVM"}) {
    EXPECT_EQ(HostPath(Logic(name)), Host(name));
  }
  EXPECT_EQ(HostPath(Logic("zIMA.qvm")), Host("ZIMA.QVM"));
}

TEST_F(HostPathsTest, SeesFilesThatComeAndGoBetweenTwoLooks) {
  MakeFile("Zima.qvm");
  EXPECT_EQ(HostPath(Logic("leto.qvm")), Host("leto.qvm"));
  MakeFile("LETO.QVM");
  EXPECT_EQ(HostPath(Logic("leto.qvm")), Host("LETO.QVM"));
  fs::rename(Host("LETO.QVM"), Host("Leto.qvm"));
  EXPECT_EQ(HostPath(Logic("leto.qvm")), Host("Leto.qvm"));
  fs::remove(Host("Leto.qvm"));
  EXPECT_EQ(HostPath(Logic("leto.qvm")), Host("leto.qvm"));
}

TEST_F(HostPathsTest, FindsHundredsOfLowerCasedFilesQuickly) {
  MakeFolder("Velika");
  MakeFile("Velika/prva");
  for (int i = 0; i < 2000; ++i) {
    fs::create_hard_link(Host("Velika/prva"), Host("Velika/ZIMA" + std::to_string(i) + ".QVM"));
  }
  const std::string asked = Logic("velika\\zima");
  const std::string found = Host("Velika/ZIMA");
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < 999; ++i) {
    const std::string number = std::to_string(i);
    ASSERT_EQ(HostPath(asked + number + ".qvm"), found + number + ".QVM");
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
  // A search of the folder for each of them takes more than a second.
  EXPECT_LT(seconds.count(), 0.3);
}

TEST_F(HostPathsTest, TakesDotsByTheText) {
  MakeFolder("a");
  EXPECT_EQ(HostPath(Logic("a\\.\\..\\b\\")), Host("b"));
  EXPECT_EQ(HostPath("C:\\..\\..\\tmp"), "/tmp");
  EXPECT_EQ(HostPath("c:"), "/");
  EXPECT_EQ(LogicPath("//tmp/./x/../y/"), "c:\\tmp\\y");
  EXPECT_EQ(LogicPath("/"), "c:\\");
}

TEST_F(HostPathsTest, RefusesWhatIsNoPath) {
  using std::string_literals::operator""s;
  Mount("");
  for (const std::string& path :
       {""s, "c"s, "q:\\x"s, "c:x"s, "\\x"s, "/tmp"s, "c:\\tmp/x"s, "c:\\a\0b"s, "ć:\\"s,
        "c:" + std::string(1'000'000, '\\') + std::string(5000, 'x')}) {
    EXPECT_EQ(files::pass_over([&] { HostPath(path); }), 76) << path.substr(0, 20);
  }
  EXPECT_EQ(files::pass_over([] { LogicPath("tmp"); }), 76);
  EXPECT_EQ(files::pass_over([] { LogicPath("/tmp/a\\b"); }), 76);
}

TEST_F(HostPathsTest, GivesLettersToMedia) {
  Mount(
      "/dev/sda1 / ext4 rw 0 0\n"
      "/dev/sdc1 /run/media/ana/MOJ\\040DISK\\134A vfat rw 0 0\n"
      "/dev/sdb1 /media/ana/\\304\\214a\\304\\215ak\\040USB vfat rw 0 0\n"
      "/dev/sdb1 /media/ana/\\304\\214a\\304\\215ak\\040USB vfat rw 0 0\n"
      "tmpfs /mediaplayer tmpfs rw 0 0\n"
      "/dev/sdd1 /mnt/cd iso9660 ro 0 0\n");
  std::vector<std::string> rows;
  for (const files::Drive& drive : files::Drives()) rows.push_back(drive.row);
  EXPECT_EQ(rows,
            (std::vector<std::string>{"c: [/]", "d: [/media/ana/Čačak USB]", "e: [/mnt/cd]"}));
}

TEST_F(HostPathsTest, LeadsThroughDrivesBothWays) {
  Mount("x / ext4\nx /mnt/cd iso\nx /mnt/cd/unutra iso\n");
  EXPECT_EQ(HostPath("D:\\x"), "/mnt/cd/x");
  EXPECT_EQ(HostPath("d:\\..\\.."), "/mnt/cd");
  EXPECT_EQ(HostPath("c:\\mnt\\cd\\x"), "/mnt/cd/x");
  EXPECT_EQ(LogicPath("/mnt/cd"), "d:\\");
  EXPECT_EQ(LogicPath("/mnt/cd/unutra/x"), "e:\\x");
  EXPECT_EQ(LogicPath("/mnt/cdrom"), "c:\\mnt\\cdrom");
  EXPECT_EQ(files::PathOnDisk("C:\\mnt\\cd\\"), "c:\\mnt\\cd");
}

TEST_F(HostPathsTest, ListsAFolderAsTheDiskHasIt) {
  const std::string no_text = "ruža\xFF.qvm";
  for (const char* name : {"b.qvm", "A.qvm", "a.qvm", "Čas.qvm", ".skriven", "a\\b"}) {
    MakeFile(name);
  }
  MakeFile(no_text);
  MakeFolder("Fascikla.qvm");
  MakeFolder(".skrivena");
  fs::create_symlink("Fascikla.qvm", Host("Druga"));
  fs::create_symlink("nema", Host("visi.qvm"));
  ASSERT_EQ(mkfifo(Host("cev.qvm").c_str(), 0600), 0);

  const files::FolderEntries entries = files::ReadFolder(HostPath(Logic()));
  EXPECT_EQ(entries.folders, (std::vector<std::string>{"Druga", "Fascikla.qvm"}));
  EXPECT_EQ(entries.files, (std::vector<std::string>{"A.qvm", "a.qvm", "b.qvm", "cev.qvm", no_text,
                                                     "visi.qvm", "Čas.qvm"}));
  EXPECT_EQ(HostPath(Logic(no_text)), Host(no_text));
  EXPECT_EQ(HostPath(Logic("RUža\xFF.QVM")), Host(no_text));
}

TEST_F(HostPathsTest, CannotReadAFolderThatIsNone) {
  MakeFile("datoteka");
  EXPECT_EQ(files::pass_over([&] { files::ReadFolder(Host("nema")); }), 76);
  EXPECT_EQ(files::pass_over([&] { files::ReadFolder(Host("datoteka")); }), 76);
}

}  // namespace
