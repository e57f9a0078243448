// SPDX-License-Identifier: MIT
#include "shell/toolkit/media/media_control.h"

#include <gtest/gtest.h>

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
#include "support/media_files.h"

namespace toolkit {

using namespace kalvon::testing;  // NOLINT: makers of media

namespace {

class PlayerForm : public Form {
 public:
  PlayerForm()
      : Form({.name = "player",
              .caption = "",
              .scale = Scale::pixels,
              .inner_width = 3000,
              .inner_height = 3000}),
        screen(*this, {"screen", {20, 10, 160, 120}}),
        player(*this, {"player_bar", {20, 140, 92, 23}}) {
    screen.BackColor(0);
  }

  PictureBox screen;
  MediaControl player;
};

struct Medium {
  std::string name;
  std::string device;
  std::string bytes;
};

std::string NameOf(const ::testing::TestParamInfo<Medium>& info) { return info.param.name; }

class MediaControlTest : public ::testing::Test {
 protected:
  MediaControlTest() {
    form_.Show();
    QApplication::processEvents();
    form_.player.Done = [this](int) { ++done_; };
    form_.screen.SetFocus();
    form_.player.hWndDisplay(GetFocus());
  }

  void Open(const std::string& device, const std::string& bytes) {
    folder_.Put("medium", bytes);
    form_.player.DeviceType(device);
    form_.player.FileName(folder_.Logic("medium"));
    form_.player.Command("Open");
  }

  [[nodiscard]] bool PlaysToItsEnd() {
    form_.player.Command("Play");
    return QTest::qWaitFor([this] { return done_ > 0; }, 10'000);
  }

  [[nodiscard]] QToolButton* Button(const char* name) {
    return form_.InnerWidget()->findChild<QToolButton*>(QString::fromLatin1(name));
  }

  [[nodiscard]] bool FileIsOpen() const {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      std::error_code gone;
      if (std::filesystem::read_symlink(entry, gone) == folder_.Host("medium")) return true;
    }
    return false;
  }

  [[nodiscard]] QColor ScreenColour(int x, int y) {
    auto* surface = form_.InnerWidget()->findChild<QWidget*>(QStringLiteral("screen"));
    return dynamic_cast<Surface&>(*surface).Shown().pixelColor(x, y);
  }

  ScratchFolder folder_;
  PlayerForm form_;
  int done_ = 0;
};

class Sounds : public MediaControlTest, public ::testing::WithParamInterface<Medium> {};

TEST_P(Sounds, PlayToTheirEndAndLetGoOfTheFile) {
  Open(GetParam().device, GetParam().bytes);
  ASSERT_TRUE(PlaysToItsEnd());
  form_.player.Command("close");
  EXPECT_FALSE(FileIsOpen());
  EXPECT_EQ(done_, 1);
}

class Videos : public MediaControlTest, public ::testing::WithParamInterface<Medium> {};

TEST_P(Videos, AppearUprightInTheirColoursInsideThePicture) {
  Open(GetParam().device, GetParam().bytes);
  ASSERT_TRUE(PlaysToItsEnd());
  struct Spot {
    int x = 0;
    int y = 0;
    QColor colour;
  };
  const Spot spots[] = {
      {30, 25, Qt::red}, {130, 25, Qt::green}, {30, 95, Qt::blue}, {130, 95, Qt::white}};
  for (const auto& [x, y, colour] : spots) {
    const QColor shown = ScreenColour(x, y);
    const int off = std::abs(shown.red() - colour.red()) +
                    std::abs(shown.green() - colour.green()) +
                    std::abs(shown.blue() - colour.blue());
    EXPECT_LT(off, 30) << x << ", " << y << ": " << shown.name().toStdString();
  }
}

const Medium sounds[] = {
    {"pcm_8_bit_mono", "WaveAudio", WaveFile(WaveFormat::pcm8, 1, 3)},
    {"pcm_16_bit_stereo", "WaveAudio", WaveFile(WaveFormat::pcm16, 2, 3)},
    {"ms_adpcm_mono", "WaveAudio", WaveFile(WaveFormat::ms_adpcm, 1, 3)},
    {"ms_adpcm_stereo", "WaveAudio", WaveFile(WaveFormat::ms_adpcm, 2, 3)},
    {"ima_adpcm_mono", "WaveAudio", WaveFile(WaveFormat::ima_adpcm, 1, 3)},
    {"ima_adpcm_stereo", "WaveAudio", WaveFile(WaveFormat::ima_adpcm, 2, 3)},
    {"midi_format_0", "Sequencer", MidiFile(0)},
    {"midi_format_1", "Sequencer", MidiFile(1)},
};

const Medium videos[] = {
    {"raw_24_bit", "AVIVideo", VideoFile(VideoCodec::raw24, true, 4)},
    {"raw_8_bit", "AVIVideo", VideoFile(VideoCodec::raw8, false, 4)},
    {"video_1_16_bit", "AVIVideo", VideoFile(VideoCodec::video1_16, false, 4)},
    {"video_1_8_bit", "AVIVideo", VideoFile(VideoCodec::video1_8, true, 4)},
    {"cinepak", "AVIVideo", VideoFile(VideoCodec::cinepak, true, 4)},
    {"cinepak_silent", "AVIVideo", VideoFile(VideoCodec::cinepak, false, 4)},
    {"motion_jpeg", "AVIVideo", VideoFile(VideoCodec::mjpeg, true, 4)},
};

INSTANTIATE_TEST_SUITE_P(All, Sounds, ::testing::ValuesIn(sounds), NameOf);
INSTANTIATE_TEST_SUITE_P(All, Videos, ::testing::ValuesIn(videos), NameOf);

TEST_F(MediaControlTest, FailsQuicklyOnWhatTheDeviceDoesNotPlay) {
  const std::string wave = WaveFile(WaveFormat::pcm8, 1, 1);
  const Medium media[] = {
      {"an empty file", "WaveAudio", ""},
      {"the head of a file alone", "WaveAudio", wave.substr(0, 12)},
      {"a sound for the video", "AVIVideo", wave},
      {"rubbish behind the mark", "AVIVideo", "RIFF____AVI " + std::string(500, '*')},
      {"a list of other files", "Sequencer", "#EXTM3U\nhttp://127.0.0.1/a.mid\n"},
      {"no device", "", wave},
  };
  for (const Medium& medium : media) {
    const int error = files::pass_over([&] { Open(medium.device, medium.bytes); });
    EXPECT_EQ(error, files::error::device_unavailable) << medium.name;
    EXPECT_EQ(files::pass_over([&] { form_.player.Command("Play"); }),
              files::error::device_unavailable);
    EXPECT_FALSE(Button("play")->isEnabled()) << medium.name;
    EXPECT_FALSE(FileIsOpen()) << medium.name;
  }
  std::filesystem::remove(folder_.Host("medium"));
  EXPECT_EQ(files::pass_over([&] { form_.player.Command("Open"); }), files::error::file_not_found);
  EXPECT_EQ(mkfifo(folder_.Host("medium").c_str(), 0600), 0);
  EXPECT_EQ(files::pass_over([&] { form_.player.Command("Open"); }), files::error::file_not_found);
}

TEST_F(MediaControlTest, ClosesWhilePlayingWithoutCompletion) {
  form_.player.Command("close");
  Open("WaveAudio", WaveFile(WaveFormat::pcm16, 1, 3));
  form_.player.Command("Play");
  QTest::qWait(100);
  form_.player.Command("close");
  QTest::qWait(500);
  EXPECT_EQ(done_, 0);
  EXPECT_FALSE(Button("play")->isEnabled());
}

TEST_F(MediaControlTest, BarPausesGoesOnAndPlaysAgainAfterReopening) {
  form_.player.Done = [this](int) {
    ++done_;
    form_.player.Command("Open");
  };
  Open("AVIVideo", VideoFile(VideoCodec::raw24, true, 6));
  EXPECT_FALSE(Button("pause")->isEnabled());
  form_.player.Command("Play");
  QTest::qWait(200);
  QTest::mouseClick(Button("pause"), Qt::LeftButton);
  QTest::qWait(800);
  EXPECT_EQ(done_, 0) << "paused";
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return done_ == 1; }, 5000));
  QTest::mouseClick(Button("play"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return done_ == 2; }, 5000)) << "replayed";
}

TEST_F(MediaControlTest, StopEndsThePlay) {
  Open("AVIVideo", VideoFile(VideoCodec::raw24, false, 100));
  form_.player.Command("Play");
  QTest::qWait(200);
  QTest::mouseClick(Button("stop"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return done_ == 1; }, 1000));
  EXPECT_TRUE(Button("play")->isEnabled());
}

}  // namespace

}  // namespace toolkit
