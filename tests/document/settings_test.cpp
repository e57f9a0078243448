// SPDX-License-Identifier: MIT
#include "document/settings.h"

#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "files/host_paths.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon {

using testing::Lines;

constexpr auto file_name = "m_kalvon_ini.txt";

class Settings : public testing::ProgramTest {
 protected:
  [[nodiscard]] std::string ProgramFolder() const { return files::LogicPath(folder().string()); }

  static void ExpectOptions(bool cyrillic, bool unicode) {
    EXPECT_EQ(frm_opcije->opt_opcije(cyrillic ? 0 : 1).Value(), true);
    EXPECT_EQ(frm_opcije->opt_opcije1(unicode ? 1 : 0).Value(), true);
  }
};

TEST_F(Settings, SurviveARestart) {
  ExpectOptions(false, false);
  std::filesystem::create_directory(folder() / "Druga: A");
  WriteFile("Druga: A/zima.qvm", "");
  frm_ucit_snimi->Dir1.Path(ProgramFolder() + "\\druga: a");
  for (const int script : {0, 1}) {
    for (const int layout : {0, 1}) {
      frm_opcije->opt_opcije(script).Value(true);
      frm_opcije->opt_opcije1(layout).Value(true);
      ClickButton("cmd_glavni(2)");
      EXPECT_EQ(ReadFile(file_name),
                Lines({"Vostrand Kalvon Multimedia", "Staza:" + ProgramFolder() + "\\Druga: A",
                       script == 0 ? "Pismo:Cirilica" : "Pismo:Latinica",
                       layout == 0 ? "Tastatura:YU ASCII" : "Tastatura:Unikod"}));
      Restart();
      ExpectOptions(script == 0, layout == 1);
      EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), ProgramFolder() + "\\Druga: A");
      ASSERT_EQ(frm_ucit_snimi->File1.ListCount(), 1);
      EXPECT_EQ(frm_ucit_snimi->File1.List(0), "zima.qvm");
    }
  }
}

TEST_F(Settings, HaveDefaultsForWhatCannotBeRead) {
  struct Case {
    const char* fault;
    std::string bytes;
    bool cyrillic, unicode;
  };
  const std::string head = "Any title\r\nStaza:c:\\\r\n";
  const std::vector<Case> cases = {
      {"no line end", head + "Pismo:Cirilica\r\nTastatura:Unikod", true, true},
      {"other labels", head + ":Cirilica\r\nx:Unikod\r\n", true, true},
      {"blank behind the colon", head + "Pismo: Cirilica\r\nTastatura: Unikod\r\n", false, false},
      {"no folder", "\r\nStaza:c:\\no\\such\r\nPismo:Cirilica\r\nTastatura:Unikod\r\n", true, true},
      {"no colon", "\r\nStaza\r\nCirilica\r\nUnikod\r\n", false, false},
  };
  for (const auto& [fault, bytes, cyrillic, unicode] : cases) {
    SCOPED_TRACE(fault);
    WriteFile(file_name, bytes);
    Restart();
    ExpectOptions(cyrillic, unicode);
    EXPECT_EQ(frm_ucit_snimi->Dir1.Path(), bytes.starts_with(head) ? "c:\\" : ProgramFolder());
  }
}

}  // namespace kalvon
