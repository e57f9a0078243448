// SPDX-License-Identifier: MIT
#include "shell/toolkit/media/media_control.h"

#include <QFile>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <utility>

#include "files/descriptor.h"
#include "files/run_time_error.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/media/media_backend_p.h"
#include "shell/toolkit/media/media_device_p.h"
#include "shell/toolkit/media/media_player_p.h"
#include "shell/toolkit/media/window_handles_p.h"

namespace toolkit {

namespace {

using State = MediaPlayer::State;

}  // namespace

/// The buttons of a media control.
class MediaBar : public QWidget {
 public:
  MediaBar() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    Add(play, QStyle::SP_MediaPlay, QStringLiteral("play"));
    Add(pause, QStyle::SP_MediaPause, QStringLiteral("pause"));
    Add(stop, QStyle::SP_MediaStop, QStringLiteral("stop"));
    ShowState(State::closed);
  }

  void ShowState(State state) {
    play.setEnabled(state == State::stopped || state == State::paused);
    pause.setEnabled(state == State::playing);
    stop.setEnabled(state == State::playing || state == State::paused);
  }

  QToolButton& Of(MediaButton button) {
    if (button == MediaButton::stop) return stop;
    return button == MediaButton::play ? play : pause;
  }

  QToolButton play;
  QToolButton pause;
  QToolButton stop;

 private:
  void Add(QToolButton& button, QStyle::StandardPixmap sign, const QString& name) {
    button.setObjectName(name);
    button.setIcon(style()->standardIcon(sign));
    button.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button.setFocusPolicy(Qt::NoFocus);
    layout()->addWidget(&button);
  }
};

MediaControl::MediaControl(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<MediaBar>()) {
  const auto on_click = [this](QToolButton& button, void (MediaPlayer::*action)()) {
    QObject::connect(&button, &QToolButton::clicked, &button, [this, action] {
      if (player_) (*player_.*action)();
    });
  };
  on_click(bar().play, &MediaPlayer::Play);
  on_click(bar().pause, &MediaPlayer::Pause);
  on_click(bar().stop, &MediaPlayer::Stop);
}

MediaControl::~MediaControl() { Close(); }

MediaBar& MediaControl::bar() const { return *static_cast<MediaBar*>(widget()); }

void MediaControl::SpokenNames(const std::string& play, const std::string& pause,
                               const std::string& stop) {
  bar().play.setAccessibleName(QString::fromStdString(play));
  bar().pause.setAccessibleName(QString::fromStdString(pause));
  bar().stop.setAccessibleName(QString::fromStdString(stop));
}

bool MediaControl::CanPress(MediaButton button) const {
  return Visible() && bar().Of(button).isEnabled();
}

void MediaControl::Press(MediaButton button) { bar().Of(button).click(); }

void MediaControl::Command(std::string_view command) {
  if (command == "Open")
    Open();
  else if (command == "Play")
    Play();
  else if (command == "close")
    Close();
  else
    throw files::RuntimeError(files::error::invalid_call);
}

void MediaControl::Open() {
  Close();
  auto file = std::make_unique<QFile>();
  const bool opened =
      file->open(files::OpenForReading(file_name_), QFile::ReadOnly, QFile::AutoCloseHandle);
  const MediaDevice* device = FindMediaDevice(device_type_);
  if (!opened || device == nullptr || !Takes(*device, *file) || !MediaBackendIsThere())
    throw files::RuntimeError(files::error::device_unavailable);

  auto* display = device->shows_video ? dynamic_cast<Surface*>(WidgetOf(display_)) : nullptr;
  const auto player = std::make_shared<MediaPlayer>(display);
  player_ = player;
  player->state_changed = [this] { bar().ShowState(player_->state()); };
  player->finished = [this] { PlayEnded(); };
  // An event that comes during the wait may close the device, or end the program.
  const bool ready = player->Open(std::move(file));
  if (Ended()) throw ProgramEnd{};
  if (player_ == player && !ready) Close();
  if (player_ != player) throw files::RuntimeError(files::error::device_unavailable);
  bar().ShowState(player->state());
}

void MediaControl::Play() {
  if (!player_) throw files::RuntimeError(files::error::device_unavailable);
  player_->Play();
}

void MediaControl::Close() {
  if (!player_) return;
  const auto closed = std::exchange(player_, nullptr);
  closed->state_changed = [] {};
  closed->Close();
  bar().ShowState(State::closed);
}

void MediaControl::PlayEnded() {
  // The handler will close the player, which is still at work when it tells this.
  const std::weak_ptr<MediaPlayer> ended = player_;
  QMetaObject::invokeMethod(
      widget(),
      [this, ended] {
        if (!ended.expired()) Done.Raise(1);
      },
      Qt::QueuedConnection);
}

}  // namespace toolkit
