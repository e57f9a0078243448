// SPDX-License-Identifier: MIT
#include "shell/toolkit/media/media_control.h"

#include <sys/stat.h>

#include <QApplication>
#include <QToolButton>

#include "shell/toolkit/windows/application.h"
#include "support/data_file.h"
#include "support/program_test.h"

namespace kalvon::testing {
namespace {

using files::pass_over;

/// The program's own control, with its picture but without the procedures that use it.
class MediaControlTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    auto& screen = frm_glavni->pic_media(5);
    for (const int picture : {4, 5}) frm_glavni->pic_media(picture).Visible(true);
    screen.Width(160);
    screen.Height(140);
    screen.BackColor(0);
    screen.SetFocus();
    player_ = &frm_glavni->mm_media;
    player_->hWndDisplay(toolkit::GetFocus());
    player_->FileName(toolkit::App::Path() + "\\medium");
    player_->Done = [this](int) { ++done_; };
  }

  void Open(const std::string& device, const std::string& bytes) {
    WriteFile("medium", bytes);
    player_->DeviceType(device);
    player_->Command("Open");
  }
  [[nodiscard]] bool Ends(int times) {
    return QTest::qWaitFor([this, times] { return done_ == times; }, 10'000);
  }
  [[nodiscard]] QToolButton* Button(const char* name) const {
    return Widget("mm_media")->findChild<QToolButton*>(QString::fromLatin1(name));
  }
  void Press(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
  [[nodiscard]] bool FileIsOpen() const {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code gone;
      if (std::filesystem::read_symlink(entry, gone) == folder() / "medium") return true;
    }
    return false;
  }

  toolkit::MediaControl* player_ = nullptr;
  int done_ = 0;
};

TEST_F(MediaControlTest, PlaysEachKindToItsEndAndLetsGoOfTheFile) {
  const std::pair<const char*, const char*> media[] = {
      {"WaveAudio", "tone.wav"}, {"Sequencer", "melody.mid"}, {"AVIVideo", "film.avi"}};
  for (const auto& [device, file] : media) {
    SCOPED_TRACE(file);
    done_ = 0;
    Open(device, DataFile(file));
    EXPECT_TRUE(FileIsOpen());
    player_->Command("Play");
    EXPECT_TRUE(Ends(1));
    player_->Command("close");
    EXPECT_FALSE(FileIsOpen());
  }
  // The last frame stays: upright, and in its own proportions between black bars.
  const std::tuple<int, int, unsigned> spots[] = {{30, 5, 0},           {30, 15, 0xFF0000},
                                                  {130, 35, 0x00FF00},  {30, 105, 0x0000FF},
                                                  {130, 125, 0xFFFFFF}, {130, 135, 0}};
  for (const auto& [x, y, colour] : spots)
    EXPECT_EQ(PixelOf("pic_media(5)", x, y), colour) << x << ", " << y;
}

TEST_F(MediaControlTest, RefusesWhatTheDeviceDoesNotPlay) {
  const std::string wave = DataFile("tone.wav");
  const std::pair<const char*, std::string> media[] = {
      {"WaveAudio", wave.substr(0, 12)},
      {"AVIVideo", wave},
      {"Sequencer", "#EXTM3U\nhttp://127.0.0.1/a.mid\n"},
      {"", wave}};
  for (const auto& [device, bytes] : media) {
    SCOPED_TRACE(bytes.substr(0, 20));
    EXPECT_EQ(pass_over([&] { Open(device, bytes); }), files::error::device_unavailable);
    EXPECT_EQ(pass_over([&] { player_->Command("Play"); }), files::error::device_unavailable);
    EXPECT_FALSE(Button("play")->isEnabled());
    EXPECT_FALSE(FileIsOpen());
  }
  std::filesystem::remove(folder() / "medium");
  ASSERT_EQ(mkfifo((folder() / "medium").c_str(), 0600), 0);
  EXPECT_EQ(pass_over([&] { player_->Command("Open"); }), files::error::file_not_found);
}

TEST_F(MediaControlTest, BarPausesGoesOnPlaysAgainAndStops) {
  player_->Done = [this](int) {
    ++done_;
    player_->Command("Open");
  };
  Open("AVIVideo", DataFile("film.avi"));
  EXPECT_FALSE(Button("pause")->isEnabled());
  Press("play");
  Press("pause");
  QTest::qWait(400);
  EXPECT_EQ(done_, 0) << "paused";
  Press("play");
  EXPECT_TRUE(Ends(1));
  Press("play");
  Press("stop");
  EXPECT_EQ(done_, 1) << "the event loop tells it";
  QApplication::processEvents();
  EXPECT_EQ(done_, 2);
  EXPECT_TRUE(Button("play")->isEnabled());
}

}  // namespace
}  // namespace kalvon::testing
