// SPDX-License-Identifier: MIT
#include "exchange/check.h"

#include "crossword/crossword_folder.h"
#include "crossword/media_table.h"
#include "crossword/pack_making.h"

namespace kalvon::exchange::testing {

using ::kalvon::testing::CrosswordFolder;
using ::kalvon::testing::CrosswordText;
using ::kalvon::testing::Qvm;

class CheckTest : public CrosswordFolder {
 protected:
  /// The sentences about a file, each with its place, and whether one is an error.
  [[nodiscard]] std::string Found(const std::string& name) const {
    Remarks remarks;
    Check(folder.Host(name), remarks);
    std::string found;
    for (const Remark& remark : remarks.List()) {
      found += IsError(remark.matter) ? "E " : "R ";
      if (remark.cell.y > 0)
        found += std::to_string(remark.cell.y) + "," + std::to_string(remark.cell.x) + " ";
      found += TextOf(remark, true) + "; ";
    }
    return found;
  }

  /// A whole crossword with one text of its file replaced.
  static std::string Broken(const std::string& good, const std::string& bad) {
    std::string qvm = Qvm({"MIR", "A#A", "KIT"});
    return qvm.replace(qvm.find(good), good.size(), bad);
  }
};

TEST_F(CheckTest, NamesEachFault) {
  struct Case {
    std::string good, bad, found;
  };
  const Case cases[] = {
      {"M$0$1$1$00", "M$0$1$1$00", ""},
      {"M$0$1$1$00", "M$0$0$1$00",
       "R 1,1 The marks of the cell differ from the words that start there; "},
      {"I$0$0$0$00", "I$0", "E 1,2 The cell breaks its form: \"I$0\"; "},
      {"I$0$0$0$00", "7$0$0$0$00", "E 1,2 The cell breaks its form: \"7$0$0$0$00\"; "},
      {"I$0$0$0$00", "IB$0$0$0$00", ""},
      {"$1$\r\n", "$9$\r\n", "E 2,2 The cell breaks its form: \"$9$\"; "},
      {"$1$\r\n\r\n", "$1$\r\n010$$$$a$$\r\n", "E 2,2 A word starts in a blocked cell; "},
      {"010$$$$A3$$", "010$$$$A3", "E 3,1 A clue is not closed by $; "},
      {"010$$$$A3$$", "010$$$$ $$", "R 3,1 A word has no clue; "},
      {"001$$$$$D2$", "",
       "R 1,3 The marks of the cell differ from the words that start there; "
       "R 1,3 Letters in a row are no word; "},
      {"010$$$$A3$$", "010$$$$/mis.bmp/A3$$",
       "E 3,1 mis.bmp is not in the pack, or the program does not take it; "},
      {"T$0$0$0$00\r\n\r\n", "", "E Cells are missing in proba.qvm; "},
      {"Y=  3", "Y=200", "E Cells are missing"},
      {"X=  3", "X=   ", "E It is no whole crossword; "},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.bad);
    folder.Put("proba.qvm", Broken(row.good, row.bad));
    EXPECT_EQ(
        Found("proba.qvm").substr(0, row.found.empty() ? std::string::npos : row.found.size()),
        row.found);
  }
  EXPECT_EQ(Found("nema.qvm"), "E The file cannot be read: No such file or directory; ");
  Put({{"dva.tri.qvm", Qvm({"MIR"})}, {"zima1001.qvm", Qvm({"MIR"})}});
  EXPECT_EQ(Found("dva.tri.qvm"), "E The program opens no crossword of the name \"dva.tri\"; ");
  EXPECT_EQ(Found("zima1001.qvm"), "");
}

TEST_F(CheckTest, LooksIntoThePack) {
  const std::string picture = "BM" + std::string(50, 'x');
  const auto found = [&](const MediaPack& pack, const std::string& table) {
    Put({{"proba.qvm",
          Qvm(CrosswordText{
              .rows = {"MIR"}, .clues = {{"A1", "/mis.bmp/Glodar"}}, .media_table = table})},
         {"proba.qvd", pack.bytes}});
    return Found("proba.qvd");
  };
  const MediaPack good = MakePack({{"mis.bmp", picture}});
  EXPECT_EQ(found(good, good.table), "");
  EXPECT_EQ(found({.table = "", .bytes = picture.substr(9)}, good.table),
            "E 1,1 The pack ends before mis.bmp; ");
  const MediaPack text = MakePack({{"mis.bmp", "Glodar i jos ponesto"}});
  EXPECT_EQ(found(text, text.table), "E 1,1 mis.bmp is not what its name says; ");
  const MediaPack two = MakePack({{"mis.bmp", picture}, {"pas.txt", "Pas"}});
  EXPECT_EQ(found(two, two.table), "R No clue names pas.txt; ");
}

TEST_F(CheckTest, APackGivesBackWhatItWasMadeOf) {
  std::map<std::string, std::string> media = {
      {"kosa.bmp", "BM kosa"}, {"a.bmp", "BM a"}, {"nula.txt", "0 na po~etku"}};
  for (std::size_t size = 996; size <= 1001; ++size)
    media["mera" + std::to_string(size) + ".wav"] = "R" + std::string(size - 1, 'w');
  const MediaPack pack = MakePack(media);
  folder.Put("proba.qvd", pack.bytes);
  for (const auto& [name, bytes] : media) {
    SCOPED_TRACE(name);
    const auto entry = FindInTable(pack.table, name);
    ASSERT_TRUE(entry);
    CutOut(folder.Logic("proba.qvd"), *entry, folder.Logic("copy"));
    const std::string copy = folder.Get("copy");
    EXPECT_EQ(copy.substr(0, 1) == " " ? copy.substr(1) : copy.substr(0, bytes.size()), bytes);
    EXPECT_LE(copy.size(), bytes.size() + 4);
  }
}

}  // namespace kalvon::exchange::testing
