// SPDX-License-Identifier: MIT
#include "crossword/reading.h"

#include <tuple>

#include "crossword/crossword_folder.h"

namespace kalvon::testing {

using Rows = std::vector<std::string>;

class Reading : public CrosswordFolder {
 protected:
  /// The clue numbers of each row of the grid.
  static Rows Numbers(const Crossword& crossword) {
    Rows rows;
    for (int y = 1; y <= crossword.ukr_visina; ++y) {
      std::string& row = rows.emplace_back();
      for (int x = 1; x <= crossword.ukr_sirina; ++x)
        row += std::to_string(crossword.rec_broj(x, y));
    }
    return rows;
  }
};

TEST_F(Reading, FillsTheValueFromOneFile) {
  Put({{"Proba 1.QVM", Qvm({.rows = {"MIR", "A##", "KIT"},
                            .letters = {"M", "", " X"},
                            .clues = {{"A1", "Rat; ne; \xE6"}, {"D1", ""}}})}});
  int steps = 0;
  const Crossword read = ReadCrossword(folder.Logic("Proba 1.QVM"), [&] { ++steps; });
  EXPECT_EQ(steps, 9 + 2 * 9);
  EXPECT_EQ(Grid(read), (Rows{"MIR", "A$$", "KIT"}));
  EXPECT_EQ(Numbers(read), (Rows{"100", "000", "200"}));
  EXPECT_EQ(read.br_vodoravnih, 2);
  EXPECT_EQ(read.br_uspravnih, 1);
  EXPECT_EQ(read.br_crnih, 2);
  for (const auto& [n, kind, x, y] : {std::array{1, 3, 1, 1}, {2, 1, 1, 3}})
    EXPECT_EQ((std::array{read.pitanja(n, 1), read.pitanja(n, 2), read.pitanja(n, 3)}),
              (std::array{kind, x, y}));
  EXPECT_EQ(read.ukr_polja(1, 1, 1), "MM$0$1$1$00");
  EXPECT_EQ(read.ukr_polja(1, 1, 2), "011$$$$Rat, ne, \xE6$$");
  EXPECT_EQ(read.ukr_polja(2, 2, 1), gray_block);
  EXPECT_EQ(read, Read("proba 1.qvm")) << "a name is found without regard to capitals";
}

TEST_F(Reading, FillsTheGapsBetweenInstallments) {
  for (const char* name : {"zima1002.qvm", "Zima1005.qvm", "zima1006.qvm"})
    Put({{name, Qvm({.rows = {"MIR", "###"}, .marks = {0, 1}, .media_table = name})}});
  const Crossword read = Read("zima1002.qvm");
  // Zima1005 does not count when the last one is sought, and is there when it is read.
  EXPECT_EQ(Grid(read), (Rows{"$$$", "$$$", "MIR", "$$$", "$$$", "$$$", "$$$", "$$$", "MIR", "$$$",
                              "MIR", "$$$"}));
  EXPECT_EQ(read.nast_smer, join::one_under_the_other);
  EXPECT_EQ(read.br_crnih, 3 * 3) << "the filling does not count";
  EXPECT_EQ(read.ukr_polja(1, 1, 1), black_square);
  for (int i = 1; i <= 6; ++i) {
    const bool present = i == 2 || i > 4;
    EXPECT_EQ(read.nast_ucitan(i), present ? i : -1);
    EXPECT_EQ(read.nast_staza(i).empty(), !present);
  }
  EXPECT_EQ(read.media_sadrzaj(5), "Zima1005.qvm");
  EXPECT_EQ(read.rec_broj(1, 9), 2);
}

TEST_F(Reading, JoinsAsTheMarksSay) {
  const std::string left = Qvm({.rows = {"MIR", "A#A", "KIT"}, .marks = {1}});
  const std::string right = Qvm({.rows = {"#DA", "#AR", "###"}, .marks = {1}});
  const std::string cells = "X$0$0$0$00\r\n\r\n";
  Put({{"zima1001.qvm", left + cells}, {"zima1002.qvm", right}});
  const Crossword beside = Read("zima1002.qvm");
  EXPECT_EQ(Grid(beside), (Rows{"MIR$DA", "A$A$AR", "KIT$$$"})) << "the cell too many is replaced";
  EXPECT_EQ(Numbers(beside), (Rows{"103046", "000050", "200000"})) << "by columns";
  EXPECT_EQ(beside.nast_polja(1), 9);

  const std::string whole = Qvm({"MIR", "A#A", "KIT"});
  Put({{"leto1001.qvm", whole + cells + "Y\r\n"},
       {"leto1002.qvm", Lines(HeaderLines(3, 3)) + "T$0$0$0$00\r\n\r\n"},
       {"leto1003.qvm", whole}});
  const Crossword under = Read("leto1001.qvm");
  EXPECT_EQ(Grid(under), (Rows{"MIR", "A$A", "KIT", "T..", "...", "...", "MIR", "A$A", "KIT"}));
  EXPECT_EQ(under.nast_smer, join::none);
  EXPECT_EQ(under.nast_polja(2), 1);

  Put({{"a.b.qvm", Qvm({"DAR", "###"})}, {"a.qvm", Qvm({"NE", "#K"})}});
  EXPECT_EQ(Grid(Read("a.b.qvm")), (Rows{"NE$", "K.."})) << "the name ends at its first dot";
}

TEST_F(Reading, RefusesWhatIsNoCrossword) {
  const std::string cells = "A$0$1$0$00\r\n010$$$$A1$$\r\n";
  const Rows head = HeaderLines(3, 3);
  const std::pair<const char*, std::string> rows[] = {
      {"eight lines", Lines({head.begin(), head.end() - 1})},
      {"no line ends", "binary\x01\x02\r\n\r\r\r\n" + std::string(300, '\xFF')},
      {"16384 cells", Lines(HeaderLines(128, 128)) + cells},
      {"negative size", Lines(HeaderLines(-5, 3)) + cells},
      {"no attribute line", Lines(head) + "A$0$1$0$00\r\n"},
      {"more words than the clue table holds", Qvm({"ABC", "DEF", "GHI"})},
      {"one cell", Lines(HeaderLines(1, 1)) + cells},
  };
  for (const auto& [fault, bytes] : rows) {
    Put({{"bad.qvm", bytes}});
    EXPECT_THROW(std::ignore = Read("bad.qvm"), files::RuntimeError) << fault;
  }
  std::filesystem::create_directory(folder.Host("folder.qvm"));
  EXPECT_EQ(files::pass_over([&] { std::ignore = Read("folder.qvm"); }),
            files::error::path_file_access);
  Put({{"zima1001.qvm", Lines(HeaderLines(60, 60))}, {"zima1999.qvm", ""}});
  EXPECT_THROW(std::ignore = Read("zima1001.qvm"), files::RuntimeError) << "all too many";
}

}  // namespace kalvon::testing
