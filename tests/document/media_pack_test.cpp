// SPDX-License-Identifier: MIT
#include "document/media_pack.h"

#include <fstream>
#include <map>
#include <random>
#include <set>

#include "multimedia/media_pane.h"
#include "shell/toolkit/desktop/screen.h"
#include "support/program_test.h"

namespace kalvon::testing {

namespace {

/// A pack in the making, and the table that belongs to it.
struct Pack {
  std::string table;
  std::string bytes;

  void Add(const std::string& name, const std::string& content) {
    bytes.resize((bytes.size() + 999) / 1000 * 1000, '0');
    bytes += content;
    table += '/' + name + '/' + std::to_string(content.size());
  }
};

/// Bytes without a pattern that a wrong offset could hit again.
std::string Content(std::size_t size) {
  std::minstd_rand next(static_cast<unsigned>(size) + 1);
  std::string content(size, ' ');
  for (char& byte : content) byte = static_cast<char>(next() >> 8);
  if (!content.empty() && content.front() == '0') content.front() = '1';
  return content;
}

class MediaPackTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    glavni.nast_staza = Table<std::string, 1>(std::array{IndexRange{1, 1}});
    glavni.nast_staza.Mutable(1) = glavni.app_staza + "velika.qvm";
    glavni.nast_smer = 0;
    glavni.nast_sirina = glavni.nast_visina = 15;
    glavni.pret_x1 = glavni.pret_y1 = 1;
  }

  void Use(const std::string& table, const std::string& pack) const {
    glavni.media_sadrzaj = Table<std::string, 1>(std::array{IndexRange{1, 1}});
    glavni.media_sadrzaj.Mutable(1) = table;
    WriteFile("velika.qvd", pack);
  }

  /// The bytes that a click on the clue of the medium cuts out, "none" without a file.
  [[nodiscard]] std::string Extract(const std::string& name) const {
    glavni.media_fajl = name;
    izvuci_media();
    return std::filesystem::exists(folder() / name) ? ReadFile(name) : "none";
  }

  [[nodiscard]] std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder()))
      names.insert(entry.path().filename());
    return names;
  }
};

TEST_F(MediaPackTest, CutsOutToTheByteAroundEveryMultipleOfAThousand) {
  const auto expect = [&](const Pack& pack, const std::string& name, const std::string& content) {
    Use(pack.table, pack.bytes);
    // The bytes themselves would fill the report.
    EXPECT_TRUE(Extract(name) == content) << name << " of " << content.size();
  };
  for (const std::size_t thousand : {0U, 1U, 2U, 64U, 65U}) {
    for (const std::size_t more : {1U, 2U, 500U, 996U, 997U}) {
      const std::string first = Content(thousand * 1000 + more);
      const std::string second = Content(2997);
      Pack pack;
      pack.Add("prva.txt", first);
      pack.Add("druga.txt", second);
      pack.Add("treca.txt", first);
      expect(pack, "prva.txt", first);
      expect(pack, "druga.txt", second);
      expect(pack, "treca.txt", first);
    }
    // With less padding than three bytes, or none, it must be the last one.
    for (const std::size_t less : {0U, 1U, 2U}) {
      const std::string last = Content((thousand + 1) * 1000 - less);
      Pack pack;
      pack.Add("prva.txt", Content(5));
      pack.Add("druga.txt", last);
      expect(pack, "druga.txt", last);
    }
  }
}

TEST_F(MediaPackTest, MeetsTablesAndPacksThatDoNotFit) {
  const std::string packed = std::string(1078, 'k') + std::string(922, '0') + std::string(200, 'g');
  struct Row {
    const char* name;
    std::string table;
    std::string medium;
    std::string cut;
  };
  const std::string huge(20, '9');
  const Row rows[] = {
      {"the first", "/kit.txt/1078/grad.txt/200", "kit.txt", std::string(1078, 'k')},
      {"the second", "/kit.txt/1078/grad.txt/200", "grad.txt", std::string(200, 'g')},
      {"a head, blanks and a last mark", "Paket/kit.txt/ 1078 /grad.txt/ 200 /", "grad.txt",
       std::string(200, 'g')},
      {"no record", "/kit.txt/1078", "grad.txt", "none"},
      {"an empty table", "", "kit.txt", "none"},
      {"other case", "/KIT.TXT/1078", "kit.txt", "none"},
      {"no size", "/kit.txt", "kit.txt", ""},
      {"no number", "/kit.txt/mnogo/grad.txt/200", "kit.txt", ""},
      {"a negative size", "/kit.txt/-5", "kit.txt", ""},
      {"a negative size before it", "/kit.txt/-1500/grad.txt/3", "grad.txt", "kkk"},
      {"more than the pack has", "/kit.txt/1078/grad.txt/5000", "grad.txt", std::string(200, 'g')},
      {"2^31 bytes", "/kit.txt/1078/grad.txt/2147483648", "grad.txt", std::string(200, 'g')},
      {"an absurd size", "/kit.txt/1078/grad.txt/" + huge, "grad.txt", std::string(200, 'g')},
      {"behind 2^31 bytes", "/kit.txt/2147483648/grad.txt/200", "grad.txt", ""},
      {"behind an absurd size", "/kit.txt/" + huge + "/grad.txt/200", "grad.txt", ""},
      {"behind the end", "/kit.txt/90000/grad.txt/200", "grad.txt", ""},
      {"a part of an earlier name", "/grad.txt.txt/1078/grad.txt/200", "grad.txt",
       std::string(1078, 'k')},
  };
  for (const auto& [name, table, medium, cut] : rows) {
    Use(table, packed);
    EXPECT_EQ(Extract(medium), cut) << name;
    EXPECT_TRUE(frm_glavni->pic_media(4).Visible()) << name;
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0) << name;
    zatvori_media();
    EXPECT_EQ(Names().size(), 1U) << name;
  }
  Use("/kit.txt/1078", "");
  std::filesystem::remove(folder() / "velika.qvd");
  EXPECT_EQ(Extract("kit.txt"), "") << "no pack";
}

TEST_F(MediaPackTest, TakesThePackOfTheInstallmentInWhichTheWordBegins) {
  glavni.nast_cifre = 3;
  glavni.nast_sirina = 8;
  glavni.nast_visina = 10;
  glavni.media_sadrzaj = Table<std::string, 1>(std::array{IndexRange{1, 3}});
  glavni.nast_staza = Table<std::string, 1>(std::array{IndexRange{1, 3}});
  for (int n = 1; n <= 3; ++n) {
    glavni.nast_staza.Mutable(n) = glavni.app_staza + "zima00" + std::to_string(n) + ".qvm";
    glavni.media_sadrzaj.Mutable(n) = "/sneg.txt/1";
    WriteFile("zima00" + std::to_string(n) + ".qvd", std::to_string(n));
  }
  struct Row {
    int direction;
    int x;
    int y;
    const char* cut;
  };
  const Row rows[] = {{1, 1, 1, "1"},   {1, 8, 30, "1"},   {1, 9, 1, "2"},    {1, 24, 1, "3"},
                      {2, 24, 10, "1"}, {2, 1, 11, "2"},   {2, 8, 21, "3"},   {0, 8, 30, "1"},
                      {0, 9, 1, "2"},   {1, 0, 0, "none"}, {1, 25, 1, "none"}};
  for (const auto& [direction, x, y, cut] : rows) {
    glavni.nast_smer = direction;
    glavni.pret_x1 = x;
    glavni.pret_y1 = y;
    EXPECT_EQ(Extract("sneg.txt"), cut) << direction << ", " << x << ", " << y;
  }
  glavni.nast_sirina = 0;
  EXPECT_EQ(Extract("sneg.txt"), "none");
}

TEST_F(MediaPackTest, LeavesEveryOtherFileAlone) {
  WriteFile("kalvon", "program");
  WriteFile("uputstvo.htm", "manual");
  WriteFile("m_kalvon_ini.txt", "settings");
  std::filesystem::create_directory(folder() / "kit.wav");
  std::filesystem::create_directory(folder() / "prog");
  const std::filesystem::path outside = folder() / "prog" / "tajna.txt";
  std::ofstream(outside) << "outside";
  glavni.app_staza += "prog\\";
  for (const char* name : {"velika.qvm", "drugi.qvd"})
    WriteFile("prog/" + std::string(name), "own");
  for (const char* name : {"kalvon", "uputstvo.htm", "m_kalvon_ini.txt"})
    std::filesystem::copy_file(folder() / name, folder() / "prog" / name);
  std::filesystem::create_directory(folder() / "prog" / "kit.wav");

  const char* names[] = {"",           ".",         "..",           "../kalvon",
                         "..\\kalvon", "c:kalvon",  "c:\\kalvon",   "kalvon",
                         "KALVON",     "kit.wav",   "uputstvo.htm", "m_kalvon_ini.txt",
                         "novi.qvm",   "drugi.QVD", "velika.qvm",   "M_KALVON_INI.TXT",
                         "a/b.txt",    "../x.txt",  "prog\\x.txt",  "x.txt:y.txt"};
  const auto snapshot = [&] {
    std::map<std::filesystem::path, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder()))
      files[entry.path()] =
          entry.is_regular_file() ? ReadFile(std::filesystem::relative(entry, folder())) : "";
    return files;
  };
  for (const std::string name : names) {
    Use('/' + name + "/3", "xyz");
    const auto before = snapshot();
    glavni.media_fajl = name;
    izvuci_media();
    EXPECT_EQ(snapshot(), before) << name;
    zatvori_media();
    EXPECT_EQ(snapshot(), before) << name;
  }
}

TEST_F(MediaPackTest, ReplacesALeftOverMediumAndFollowsNoLink) {
  WriteFile("velika.qvm", "crossword");
  Use("/qt.conf/3", "xyz");
  EXPECT_EQ(Extract("qt.conf"), "none") << "the host would read it at the next start";
  WriteFile("kit.txt", "left over");
  std::filesystem::create_symlink("velika.qvm", folder() / "grad.txt");
  Use("/kit.txt/3/grad.txt/3/blago.xyz/3",
      "kit" + std::string(997, '0') + "gra" + std::string(997, '0') + "bla");
  EXPECT_EQ(Extract("kit.txt"), "kit");
  EXPECT_EQ(Extract("grad.txt"), "gra");
  EXPECT_EQ(Extract("blago.xyz"), "none") << "no medium by its name";
  zatvori_media();
  EXPECT_EQ(ReadFile("velika.qvm"), "crossword");
  EXPECT_EQ(Names().size(), 2U);
}

TEST_F(MediaPackTest, StaysInsideTheFolderWhateverAStrangerWrote) {
  std::mt19937 random(4);
  const auto any = [&](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  const auto mutate = [&](std::string text) {
    const std::string_view pieces[] = {
        "/", "..", "\\", "-", "999999999", std::string_view("\0", 1), "kit.txt", " ", "0"};
    for (std::size_t times = any(4); times > 0; --times)
      text.replace(any(text.size()), any(3), pieces[any(std::size(pieces))]);
    return text;
  };
  WriteFile("velika.qvm", "crossword");
  const std::string packed = Content(1078) + std::string(922, '0') + Content(200);
  Use("", "");
  const auto before = Names();
  for (int round = 0; round < 2000; ++round) {
    Use(mutate("/kit.txt/1078/grad.bmp/200/voz.wav/40"), mutate(packed).substr(0, any(2400)));
    glavni.media_fajl = mutate(round % 2 == 0 ? "grad.bmp" : "kit.txt");
    izvuci_media();
    for (const auto& name : Names())
      ASSERT_LE(std::filesystem::file_size(folder() / name), packed.size() + 100) << name;
    zatvori_media();
    ASSERT_EQ(Names(), before) << glavni.media_fajl;
  }
  EXPECT_EQ(ReadFile("velika.qvm"), "crossword");
}

TEST_F(MediaPackTest, FindsItsWayThroughATableOfAMegabyte) {
  std::string table;
  while (table.size() < (1U << 20U)) table += "/a/1";
  Use(table + "/kit.txt/3", "kit");
  EXPECT_EQ(Extract("kit.txt"), "");
  Use(std::string(1U << 20U, '/') + "kit.txt/3", "kit");
  EXPECT_EQ(Extract("kit.txt"), "kit");
  // A long name in a long table of the same letters would be looked for until the end of time.
  Use(std::string(15U << 20U, 'a'), "kit");
  zatvori_media();
  const auto before = Names();
  glavni.media_fajl = std::string(4U << 20U, 'a') + "b.txt";
  izvuci_media();
  EXPECT_EQ(Names(), before);
}

}  // namespace

}  // namespace kalvon::testing
