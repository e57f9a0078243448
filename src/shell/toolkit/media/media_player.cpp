// SPDX-License-Identifier: MIT
#include <QAudioOutput>
#include <QCoreApplication>
#include <QTimer>
#include <QUrl>
#include <QVideoFrame>
#include <algorithm>
#include <utility>

#include "shell/toolkit/drawing/picture.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/media/media_player_p.h"

namespace toolkit {

namespace {

/// A medium that is not ready after this time, in milliseconds, is taken for one that cannot play.
constexpr int longest_wait = 5000;

}  // namespace

MediaPlayer::MediaPlayer(Surface* display)
    : display_(display), player_(std::make_unique<QMediaPlayer>()) {
  QMediaPlayer* player = player_.get();
  player->setAudioOutput(new QAudioOutput(player));
  player->setVideoSink(&frames_);
  QObject::connect(&frames_, &QVideoSink::videoFrameChanged, player,
                   [this](const QVideoFrame& frame) { Show(frame); });
  QObject::connect(player, &QMediaPlayer::playbackStateChanged, player,
                   [this] { state_changed(); });
  QObject::connect(player, &QMediaPlayer::mediaStatusChanged, player,
                   [this](QMediaPlayer::MediaStatus status) {
                     if (status == QMediaPlayer::EndOfMedia) EndPlay();
                   });
  QObject::connect(player, &QMediaPlayer::errorOccurred, player, [this] { EndPlay(); });
}

void MediaPlayer::EndPlay() {
  if (std::exchange(running_, false)) finished();
}

bool MediaPlayer::Opening() const {
  return player_ && player_->mediaStatus() == QMediaPlayer::LoadingMedia;
}

bool MediaPlayer::Open(std::unique_ptr<QFile> file) {
  if (!player_) return false;
  file_ = std::move(file);
  // An address cannot spell the bytes of every name; the host's number of an open file needs none.
  player_->setSource(QUrl::fromLocalFile(QStringLiteral("/dev/fd/%1").arg(file_->handle())));
  QTimer timeout;
  timeout.setSingleShot(true);
  timeout.start(longest_wait);
  while (Opening() && timeout.isActive() && !Ended())
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
  return player_ && (player_->mediaStatus() == QMediaPlayer::LoadedMedia ||
                     player_->mediaStatus() == QMediaPlayer::BufferedMedia);
}

void MediaPlayer::Play() {
  running_ = true;
  player_->play();
}

void MediaPlayer::Pause() { player_->pause(); }

void MediaPlayer::Stop() {
  player_->stop();
  EndPlay();
}

void MediaPlayer::Close() {
  running_ = false;
  // A player that has failed takes its time to stop, but none to go.
  player_.reset();
  file_.reset();
}

MediaPlayer::State MediaPlayer::state() const {
  if (!player_) return State::closed;
  switch (player_->playbackState()) {
    case QMediaPlayer::PlayingState:
      return State::playing;
    case QMediaPlayer::PausedState:
      return State::paused;
    default:
      return State::stopped;
  }
}

void MediaPlayer::Show(const QVideoFrame& frame) {
  if (std::max(frame.width(), frame.height()) > largest_side) return;
  QImage image = frame.toImage();
  // The frame that a player gives when it stops is empty; the last picture stays.
  if (!display_ || image.isNull()) return;
  // Some decoders leave the fourth byte empty, which is no transparency.
  if (image.depth() == 32) image.reinterpretAsFormat(QImage::Format_RGB32);
  QRect place(QPoint(), image.size().scaled(display_->Area().size(), Qt::KeepAspectRatio));
  place.moveCenter(display_->Area().center());
  QPainter& painter = display_->Painter(QPainter::CompositionMode_SourceOver);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
  painter.drawImage(place, image);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  display_->Drawn(place);
}

}  // namespace toolkit
