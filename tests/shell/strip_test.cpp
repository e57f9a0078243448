// SPDX-License-Identifier: MIT
#include "shell/strip.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <chrono>

#include "shell/strip_texts.h"
#include "solving/undo.h"
#include "support/crossword_text.h"
#include "support/program_test.h"

namespace kalvon::testing {

class StripNews : public ProgramTest {
 protected:
  void Save() { ClickButton("cmd_glavni(1)"); }
};

TEST_F(StripNews, TellsWhatHappenedAndMarksUnsavedWork) {
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
  EXPECT_EQ(NewsText(), "Snimljeno: mir.qvm.");
  EXPECT_FALSE(Widget("frm_glavni")->isWindowModified());
}

TEST_F(StripNews, TellsWhichFileWasNotSavedAndWhy) {
  const std::string bytes = Qvm({.rows = {"MIR"}, .marks = {1, 0, 0, 0}});
  for (const char* name : {"zima1001.qvm", "zima1002.qvm", "zima1003.qvm"}) WriteFile(name, bytes);
  Load("zima1001.qvm");
  ClickButton("cmd_glavni(3)");
  std::filesystem::remove(folder() / "zima1002.qvm");
  WriteFile("zima1003.qvm", Qvm({"RIM"}));
  Save();
  EXPECT_EQ(NewsText(),
            "Nije snimljeno: zima1002.qvm – datoteke nema, zima1003.qvm – na njenom mestu je druga "
            "ukrštenica. Snimljeno: zima1001.qvm.");
  EXPECT_TRUE(glavni.izmenjeno);
  frm_opcije->opt_opcije(0).Value(true);
  WriteFile("zima1002.qvm", bytes);
  WriteFile("zima1003.qvm", bytes);
  Save();
  EXPECT_EQ(NewsText(), "Снимљено: zima1001.qvm, zima1002.qvm, zima1003.qvm.");
  EXPECT_FALSE(glavni.izmenjeno);
}

TEST_F(StripNews, UnsavedLettersComeBackAfterAKillAndWaitAfterAnEnd) {
  const std::string bytes = Qvm({"MIR", "A#A", "KIT"});
  WriteFile("mir.qvm", bytes);
  const auto key = [&](Qt::Key letter) {
    QTest::keyClick(QApplication::focusWidget(), letter, Qt::ControlModifier);
  };
  Load("mir.qvm");
  key(Qt::Key_R);
  Restart();
  Load("mir.qvm");
  EXPECT_EQ(NewsText(),
            "mir.qvm: vraćena su slova koja nisu snimljena; Ctrl+Z ih uklanja korak po korak.");
  EXPECT_TRUE(glavni.izmenjeno && glavni.slova.filled == 3);
  key(Qt::Key_Z);
  EXPECT_TRUE(!glavni.izmenjeno && glavni.slova.filled == 0);
  key(Qt::Key_Y);
  key(Qt::Key_Q);
  EXPECT_EQ(ReadFile("mir.qvm"), bytes);
  Restart();
  Load("mir.qvm");
  EXPECT_EQ(NewsText(),
            "mir.qvm: čekaju slova koja nisu snimljena; Ctrl+Y ih vraća korak po korak.");
  EXPECT_EQ(glavni.slova.filled, 0);
  key(Qt::Key_L);
  EXPECT_EQ(glavni.dnevnik->EarlierSteps(), 1U);
  vrati_raniji_rad();
  EXPECT_EQ(NewsText(), "Prethodni rad je vraćen.");
  EXPECT_EQ(frm_glavni->txt_rec(2).Text(), "R");
}

class TimeInTheStrip : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    WriteFile("mir.qvm", Qvm({"MIR", "A#A", "KIT"}));
    Load("mir.qvm");
  }
  void ShowTime() {
    for (QAction* row : Widget("strip")->findChildren<QAction*>())
      if (row->text() == QStringLiteral("Prikaži vreme")) row->trigger();
  }
  [[nodiscard]] std::string Status() const {
    return Widget<QLabel>("strip_status")->text().toStdString();
  }
  void Activate(const std::string& form) { QApplication::setActiveWindow(Widget(form)); }
  /// What is measured has begun so much earlier.
  static void Pass(std::chrono::minutes time) {
    if (glavni.vreme_od) *glavni.vreme_od -= time;
  }
};

TEST_F(TimeInTheStrip, CountsWhileTheWindowIsActiveAndIsKeptWithTheCrossword) {
  Pass(std::chrono::minutes(61));
  Activate("frm_opcije");
  Pass(std::chrono::minutes(5));
  Activate("frm_glavni");
  EXPECT_EQ(Status(), "0/8");
  ShowTime();
  EXPECT_EQ(Status(), "1:01   0/8");
  Load("mir.qvm");
  Pass(std::chrono::minutes(3));
  Restart();
  Load("mir.qvm");
  EXPECT_EQ(Status(), "1:01   0/8") << "after a kill";
  Pass(std::chrono::minutes(3));
  ClickButton("cmd_glavni(2)");
  Restart();
  Load("mir.qvm");
  EXPECT_EQ(Status(), "1:04   0/8") << "after an end";
}

TEST_F(TimeInTheStrip, GoesOnAtAWholeMinuteByItself) {
  ShowTime();
  Type("m");
  const std::string news = NewsText();
  Activate("frm_opcije");
  glavni.vreme_ostatak = std::chrono::milliseconds(59'950);
  Activate("frm_glavni");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Status() == "0:01   0/8"; }));
  EXPECT_EQ(NewsText(), news);
}

}  // namespace kalvon::testing
