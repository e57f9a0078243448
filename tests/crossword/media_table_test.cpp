// SPDX-License-Identifier: MIT
#include "crossword/media_table.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>
#include <vector>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"

namespace kalvon::testing {
namespace {

class MediaTable : public ::testing::Test {
 protected:
  /// What is cut out of the pack for a name of its table, "none" for a name that isn't there.
  [[nodiscard]] std::string Cut(const std::string& table, const std::string& name,
                                const std::string& pack) const {
    folder.Put("velika.qvd", pack);
    const auto entry = FindInTable(table, name);
    if (!entry) return "none";
    CutOut(folder.Logic("velika.qvd"), *entry, folder.Logic("cut.txt"));
    return folder.Get("cut.txt");
  }

  ScratchFolder folder;
};

/// Bytes without a pattern that a wrong offset could hit again.
std::string Content(std::size_t size) {
  std::minstd_rand next(static_cast<unsigned>(size) + 1);
  std::string content(size, ' ');
  for (char& byte : content) byte = static_cast<char>(next() >> 8);
  if (content.front() == '0') content.front() = '1';
  return content;
}

TEST_F(MediaTable, CutsOutToTheByteAroundEveryMultipleOfAThousand) {
  for (const std::size_t size : {1U, 2U, 996U, 997U, 1001U, 2500U, 64997U, 65001U}) {
    std::string table;
    std::string pack;
    const std::vector<std::string> contents = {Content(size), Content(2997), Content(size + 1000)};
    for (std::size_t i = 0; i < contents.size(); ++i) {
      pack.resize((pack.size() + 999) / 1000 * 1000, '0');
      pack += contents[i];
      table += "/f" + std::to_string(i) + ".txt/" + std::to_string(contents[i].size());
    }
    // The bytes themselves would fill the report.
    for (std::size_t i = 0; i < contents.size(); ++i)
      EXPECT_TRUE(Cut(table, "f" + std::to_string(i) + ".txt", pack) == contents[i]) << size << i;
  }
  // With less padding than three bytes, or none, it must be the last one.
  for (const std::size_t size : {998U, 1000U})
    EXPECT_EQ(Cut("/a.txt/5/b.txt/998", "b.txt", "prva." + std::string(995, '0') + Content(size)),
              Content(size).substr(0, 998));
}

TEST_F(MediaTable, MeetsTablesAndPacksThatDoNotFit) {
  const std::string kit(1078, 'k');
  const std::string grad(200, 'g');
  const std::string pack = kit + std::string(922, '0') + grad;
  const std::string huge(20, '9');
  using Row = std::tuple<std::string, const char*, std::string>;
  const Row rows[] = {
      {"/kit.txt/1078/grad.txt/200", "kit.txt", kit},
      {"Paket/kit.txt/ 1078 /grad.txt/ 200 /", "grad.txt", grad},
      {"/KIT.TXT/1078", "kit.txt", "none"},
      {"/kit.txt/-1500/grad.txt/3", "grad.txt", "kkk"},
      {"/kit.txt/1078/grad.txt/5000", "grad.txt", grad},
      {"/kit.txt/1078/grad.txt/" + huge, "grad.txt", grad},
      {"/kit.txt/" + huge + "/grad.txt/200", "grad.txt", ""},
      {"/grad.txt.txt/1078/grad.txt/200", "grad.txt", kit},
  };
  for (const auto& [table, medium, cut] : rows) EXPECT_EQ(Cut(table, medium, pack), cut) << table;
}

TEST_F(MediaTable, FollowsNoLinkAndNamesNoOtherFile) {
  folder.Put("velika.qvm", "crossword");
  std::filesystem::create_symlink("velika.qvm", folder.Host("cut.txt"));
  EXPECT_EQ(Cut("/kit.txt/3", "kit.txt", "kit"), "kit");
  EXPECT_EQ(folder.Get("velika.qvm"), "crossword");

  for (const std::string name : {"kit.bmp", "GRAD.TXT", "a.b.wav", " .mid", "\xC6.avi"})
    EXPECT_TRUE(KindOfMedium(name)) << name;
  for (const std::string name :
       {"", ".", "..", "../kit.bmp", "..\\kit.bmp", "c:kit.bmp", "kalvon", "a.htm", "qt.conf",
        "m_kalvon_ini.txt", "M_KALVON_INI.TXT", "novi.qvm", "drugi.QVD", "a/b.txt", "bmp"})
    EXPECT_FALSE(KindOfMedium(name)) << name;
  EXPECT_FALSE(KindOfMedium(std::string(255, 'a').append(".txt")));
  EXPECT_FALSE(KindOfMedium(std::string("a\0.txt", 6)));
}

}  // namespace
}  // namespace kalvon::testing
