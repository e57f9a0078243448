// SPDX-License-Identifier: MIT
#include "shell/toolkit/media/media_control.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <filesystem>

#include "files/run_time_error.h"
#include "files/scratch_folder.h"
#include "shell/toolkit/drawing/surface_p.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/windows/application.h"
#include "shell/toolkit/windows/form.h"
#include "support/data_file.h"

namespace toolkit {
namespace {

using kalvon::testing::DataFile;

class PlayerForm : public Form {
 public:
  PlayerForm()
      : Form({.name = "player",
              .caption = "",
              .scale = Scale::pixels,
              .inner_width = 3000,
              .inner_height = 3000}) {}

  PictureBox screen{*this, {"screen", {0, 0, 160, 140}}};
  MediaControl player{*this, {"player", {0, 140, 92, 23}}};
};

class MediaControlTest : public ::testing::Test {
 protected:
  MediaControlTest() {
    form_.screen.BackColor(0);
    form_.Show();
    QApplication::processEvents();
    form_.screen.SetFocus();
    player_.hWndDisplay(GetFocus());
    player_.Done = [this](int) { ++done_; };
  }

  void Open(const std::string& device, const std::string& bytes) {
    folder_.Put("medium", bytes);
    player_.DeviceType(device);
    player_.FileName(folder_.Logic("medium"));
    player_.Command("Open");
  }
  [[nodiscard]] bool Ends(int times) {
    return QTest::qWaitFor([this, times] { return done_ == times; }, 10'000);
  }
  [[nodiscard]] QToolButton* Button(const char* name) {
    return form_.InnerWidget()->findChild<QToolButton*>(QString::fromLatin1(name));
  }
  void Press(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
  [[nodiscard]] bool FileIsOpen() const {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code gone;
      if (std::filesystem::read_symlink(entry, gone) == folder_.Host("medium")) return true;
    }
    return false;
  }

  ScratchFolder folder_;
  PlayerForm form_;
  MediaControl& player_ = form_.player;
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
    player_.Command("Play");
    EXPECT_TRUE(Ends(1));
    player_.Command("close");
    EXPECT_FALSE(FileIsOpen());
  }
  // The video is upright, in its own proportions, and the last frame stays.
  auto* screen = form_.InnerWidget()->findChild<QWidget*>(QStringLiteral("screen"));
  const QImage shown = dynamic_cast<Surface&>(*screen).Shown();
  const std::tuple<int, int, QColor> spots[] = {{30, 5, Qt::black},    {30, 15, Qt::red},
                                                {130, 35, Qt::green},  {30, 105, Qt::blue},
                                                {130, 125, Qt::white}, {130, 135, Qt::black}};
  for (const auto& [x, y, colour] : spots)
    EXPECT_EQ(shown.pixelColor(x, y).name(), colour.name()) << x << ", " << y;
}

TEST_F(MediaControlTest, FailsQuicklyOnWhatTheDeviceDoesNotPlay) {
  const std::string wave = DataFile("tone.wav");
  const std::pair<const char*, std::string> media[] = {
      {"WaveAudio", wave.substr(0, 12)},
      {"AVIVideo", wave},
      {"Sequencer", "#EXTM3U\nhttp://127.0.0.1/a.mid\n"},
      {"", wave}};
  for (const auto& [device, bytes] : media) {
    SCOPED_TRACE(bytes.substr(0, 20));
    EXPECT_EQ(files::pass_over([&] { Open(device, bytes); }), files::error::device_unavailable);
    EXPECT_EQ(files::pass_over([&] { player_.Command("Play"); }), files::error::device_unavailable);
    EXPECT_FALSE(Button("play")->isEnabled());
    EXPECT_FALSE(FileIsOpen());
  }
  std::filesystem::remove(folder_.Host("medium"));
  ASSERT_EQ(mkfifo(folder_.Host("medium").c_str(), 0600), 0);
  EXPECT_EQ(files::pass_over([&] { player_.Command("Open"); }), files::error::file_not_found);
}

TEST_F(MediaControlTest, BarPausesGoesOnPlaysAgainAndStops) {
  player_.Done = [this](int) {
    ++done_;
    player_.Command("Open");
  };
  Open("AVIVideo", DataFile("film.avi"));
  EXPECT_FALSE(Button("pause")->isEnabled());
  Press("play");
  Press("pause");
  QTest::qWait(600);
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
}  // namespace toolkit
