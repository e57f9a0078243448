// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QPushButton>
#include <csignal>
#include <filesystem>
#include <map>

#include "files/host_paths.h"
#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "shell/events.h"
#include "shell/toolkit/desktop/program_folders.h"
#include "shell/toolkit/desktop/screen.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/end_requests_p.h"
#include "support/program_test.h"

namespace kalvon::testing {

class StartupTest : public ProgramTest {};

TEST_F(StartupTest, TheFirstCrosswordEnablesWhatNeedsOne) {
  for (const bool loaded : {false, true}) {
    if (loaded) Load("proba.qvm");
    for (const char* control :
         {"cmd_glavni(1)", "cmd_glavni(3)", "cmd_glavni(4)", "cmd_glavni(5)", "pic_ukr", "scr_hor",
          "scr_ver", "scr_tekst(1)", "pic_tekst(1)", "txt_rec(14)"})
      EXPECT_EQ(Widget(control)->isEnabled(), loaded) << control;
    EXPECT_EQ(Widget("frm_glavni")->grab().toImage().pixel(3, 300) & 0xFFFFFFU, 0xC0C0C0U)
        << loaded;
    EXPECT_NE(PixelOf("pic_ukr", 5, 5), 0xFFFFFFU) << "the title picture, or the first word's mark";
  }
}

TEST_F(StartupTest, ButtonsSpeakSerbianAndTheLastInTheRowEndsTheProgram) {
  std::map<int, std::string> row;
  for (int i = 0; i < 7; ++i) {
    const auto* button = Widget<QPushButton>("cmd_glavni(" + std::to_string(i) + ")");
    row[button->x()] = button->text().toStdString();
    const int needed = button->fontMetrics().horizontalAdvance(button->text().remove(u'&'));
    EXPECT_LE(needed + 4, button->width()) << "the whole caption of button " << i;
  }
  std::string captions;
  for (const auto& [x, caption] : row) captions += caption + ' ';
  EXPECT_EQ(captions, "&Učitaj &Snimi &Reši &Briši &Opcije &Pomoć &Kraj ");
}

TEST_F(StartupTest, FormsAreCentredByTheSizeOfTheirSheets) {
  const int height = toolkit::Screen::Height();
  EXPECT_EQ(frm_glavni->Left(), (toolkit::Screen::Width() - 648 * 15) >> 1);
  EXPECT_EQ(frm_ucit_snimi->Top(), (height - frm_ucit_snimi->Height()) >> 1);
  // The options form is centred with its stored height, and grows afterwards.
  EXPECT_EQ(frm_opcije->Top(), (height - 5220 - 25 * 15) >> 1);
  EXPECT_EQ(frm_opcije->Height(), 6915);
  EXPECT_EQ(frm_opcije->frm_opcije(2).Left(), 135);
  EXPECT_EQ(frm_opcije->frm_opcije(0).Top(), 1455);
  EXPECT_EQ(frm_opcije->frm_opcije(1).Top(), 3405);
  EXPECT_EQ(frm_opcije->cmd_opcije(0).Top(), 6105);
}

TEST_F(StartupTest, AFormHigherThanTheScreenGivesUpItsTitleBar) {
  const int screen = toolkit::Screen::Height();
  for (const int height : {screen, screen + 15}) {
    UnloadForms();
    glavni = {};
    BindEvents();
    const auto load = frm_glavni.Load;
    frm_glavni.Load = [&](FrmGlavni& form) {
      form.Height(height);
      load.Raise(form);
    };
    frm_glavni->Show();
    EXPECT_EQ(frm_glavni->Caption().empty(), height > screen);
    EXPECT_EQ(frm_glavni->Height(), height > screen ? height + 300 : height);
  }
}

TEST_F(StartupTest, TheWindowAndTheDesktopEndTheProgramWithoutASave) {
  const toolkit::EndRequests end_requests;
  for (const bool by_desktop : {false, true}) {
    Load("proba.qvm");
    const std::string before = ReadFile("proba.qvm");
    ClickButton("cmd_glavni(3)");
    if (by_desktop) {
      ClickButton("cmd_glavni(0)");
      ASSERT_EQ(std::raise(SIGTERM), 0);
      EXPECT_FALSE(toolkit::Ended()) << "the event loop ends it, not the signal";
    } else {
      Widget("frm_glavni")->close();
    }
    EXPECT_TRUE(QTest::qWaitFor([] { return toolkit::Ended(); }, 2000));
    EXPECT_EQ(ReadFile("proba.qvm"), before);
    EXPECT_TRUE(std::filesystem::remove(folder() / "m_kalvon_ini.txt"));
    Restart();
  }
}

TEST(ProgramFolders, DependOnWhereTheProgramLies) {
  const ScratchFolder prefix;
  const QByteArray data = qgetenv("XDG_DATA_HOME");
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", prefix.Host("home").c_str());
  qunsetenv("XDG_DATA_HOME");
  for (const char* folder : {"bin", "share", "share/kalvon"})
    std::filesystem::create_directory(prefix.Host(folder));

  const toolkit::ProgramFolders own = toolkit::FindProgramFolders(prefix.Host("share"));
  EXPECT_EQ(own.own, prefix.Logic("share"));
  EXPECT_EQ(own.shipped, own.own);
  EXPECT_EQ(own.crosswords + std::to_string(own.error), "0");

  const toolkit::ProgramFolders installed = toolkit::FindProgramFolders(prefix.Host("bin"));
  EXPECT_EQ(installed.shipped, prefix.Logic("share\\kalvon"));
  EXPECT_EQ(installed.own, prefix.Logic("home\\.local\\share\\kalvon"));
  EXPECT_EQ(installed.crosswords, prefix.Logic("home\\Documents\\Ukrstenice"));
  EXPECT_EQ(installed.error, 0);
  EXPECT_TRUE(std::filesystem::is_directory(prefix.Host("home/Documents/Ukrstenice")));

  // No home, in a way that stops root too.
  std::filesystem::remove_all(prefix.Host("home"));
  prefix.Put("home", "no folder");
  const toolkit::ProgramFolders passing = toolkit::FindProgramFolders(prefix.Host("bin"));
  EXPECT_EQ(passing.error, files::error::path_not_found);
  EXPECT_TRUE(std::filesystem::is_directory(files::HostPath(passing.own)));
  EXPECT_EQ(passing.crosswords, prefix.Logic("share\\kalvon\\primeri"));
  qputenv("HOME", home);
  qputenv("XDG_DATA_HOME", data);
}

}  // namespace kalvon::testing
