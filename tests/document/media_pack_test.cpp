// SPDX-License-Identifier: MIT
#include "document/media_pack.h"

#include "multimedia/media_pane.h"
#include "shell/toolkit/desktop/screen.h"
#include "support/program_test.h"

namespace kalvon::testing {

class MediaPack : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    glavni.nast_staza = glavni.media_sadrzaj = Table<std::string, 1>(std::array{IndexRange{1, 3}});
    for (int n = 1; n <= 3; ++n) {
      const std::string name = "zima100" + std::to_string(n);
      glavni.nast_staza.Mutable(n) = glavni.app_staza + name + ".QVM";
      glavni.media_sadrzaj.Mutable(n) = "/sneg.txt/1";
      WriteFile(name + ".qvd", std::to_string(n));
    }
    glavni.nast_sirina = 8;
    glavni.nast_visina = 10;
  }

  /// The bytes that a click on the clue of the medium cuts out, "none" without a file.
  [[nodiscard]] std::string Extract(const std::string& name) const {
    glavni.media_fajl = name;
    izvuci_media();
    EXPECT_TRUE(frm_glavni->pic_media(4).Visible());
    EXPECT_EQ(toolkit::Screen::MousePointer(), 0);
    return std::filesystem::exists(folder() / name) ? ReadFile(name) : "none";
  }
};

TEST_F(MediaPack, IsThatOfTheInstallmentInWhichTheWordBegins) {
  using Row = std::tuple<int, int, int, const char*>;
  const Row rows[] = {{1, 1, 1, "1"},   {1, 8, 30, "1"},   {1, 9, 1, "2"},
                      {2, 24, 10, "1"}, {2, 1, 11, "2"},   {0, 8, 30, "1"},
                      {0, 9, 1, "2"},   {1, 0, 0, "none"}, {1, 25, 1, "none"}};
  for (const auto& [joined, x, y, cut] : rows) {
    glavni.nast_smer = joined;
    glavni.pret_x1 = x;
    glavni.pret_y1 = y;
    EXPECT_EQ(Extract("sneg.txt"), cut) << joined << ", " << x << ", " << y;
    zatvori_media();
    EXPECT_FALSE(std::filesystem::exists(folder() / "sneg.txt"));
  }
}

TEST_F(MediaPack, TouchesNoFileButTheMedium) {
  glavni.pret_x1 = glavni.pret_y1 = 1;
  for (const std::string name : {"kalvon", "m_kalvon_ini.txt", "novi.qvm"}) {
    WriteFile(name, "own");
    glavni.media_sadrzaj.Mutable(1) = '/' + name + "/1";
    EXPECT_EQ(Extract(name), "own");
    zatvori_media();
    EXPECT_EQ(ReadFile(name), "own");
  }
}

TEST_F(MediaPack, KeepsWhatIsTooLargeAndGivesNoRestBehindTheLastChunkOfASound) {
  glavni.pret_x1 = glavni.pret_y1 = 1;
  const std::string wave("RIFF....WAVEfmt \2\0\0\0..data\3\0\0\0abc", 33);
  const std::tuple<const char*, std::string, std::size_t, std::string> rows[] = {
      {"zvuk.wav", wave + '\0', 34, wave},
      {"zvuk.wav", wave + std::string(9, '\0'), 42, wave + std::string(9, '\0')},
      {"tekst.txt", wave + '\0', 34, wave + '\0'},
      {"muzika.mid", wave, (1 << 20) + 1, "none"}};
  for (const auto& [name, packed, size, cut] : rows) {
    WriteFile("zima1001.qvd", packed);
    glavni.media_sadrzaj.Mutable(1) = '/' + std::string(name) + '/' + std::to_string(size);
    EXPECT_EQ(Extract(name), cut) << name;
    zatvori_media();
  }
}

}  // namespace kalvon::testing
