// SPDX-License-Identifier: MIT
#include "shell/strip.h"

#include <QLabel>

#include "shell/strip_texts.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

class StripTest : public ProgramTest {
 protected:
  void Save() { ClickButton("cmd_glavni(1)"); }
};

TEST_F(StripTest, TellsWhatHappenedAndMarksUnsavedWork) {
  EXPECT_EQ(NewsText(), "Ctrl+O učitava ukrštenicu.");
  WriteFile("mir.qvm", Qvm({"MIR", "A#A", "KIT"}));
  WriteFile("losa.qvm", "\r\nNaziv: Ima samo dva reda\r\n");
  Load("losa.qvm");
  EXPECT_EQ(NewsText(), "Nije učitano: losa.qvm – datoteka nije cela.");
  Load("mir.qvm");
  EXPECT_EQ(NewsText(), "Učitana je ukrštenica mir.qvm.");
  Type("x");
  EXPECT_EQ(NewsText(), "Enter upisuje slova u ukrštenicu.");
  EXPECT_FALSE(Widget("frm_glavni")->isWindowModified());
  PressKey(Qt::Key_Return);
  EXPECT_EQ(NewsText(), "Reč je upisana.");
  EXPECT_TRUE(Widget("frm_glavni")->isWindowModified());
  Save();
  EXPECT_EQ(NewsText(), "Sačuvano: mir.qvm.");
  EXPECT_FALSE(Widget("frm_glavni")->isWindowModified());
}

TEST_F(StripTest, TellsWhichFileWasNotSavedAndWhy) {
  const std::string bytes = Qvm({.rows = {"MIR"}, .marks = {1, 0, 0, 0}});
  for (const char* name : {"zima1001.qvm", "zima1002.qvm", "zima1003.qvm"}) WriteFile(name, bytes);
  Load("zima1001.qvm");
  ClickButton("cmd_glavni(3)");
  std::filesystem::remove(folder() / "zima1002.qvm");
  WriteFile("zima1003.qvm", Qvm({"RIM"}));
  Save();
  EXPECT_EQ(NewsText(),
            "Nije sačuvano: zima1002.qvm – datoteke nema, zima1003.qvm – na njenom mestu je druga "
            "ukrštenica. Sačuvano: zima1001.qvm.");
  EXPECT_TRUE(glavni.izmenjeno);
  frm_opcije->opt_opcije(0).Value(true);
  WriteFile("zima1002.qvm", bytes);
  WriteFile("zima1003.qvm", bytes);
  Save();
  EXPECT_EQ(NewsText(), "Сачувано: zima1001.qvm, zima1002.qvm, zima1003.qvm.");
  EXPECT_FALSE(glavni.izmenjeno);
}

}  // namespace kalvon::testing
