// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QMediaPlayer>
#include <QPointer>
#include <QVideoSink>
#include <functional>
#include <memory>

#include "shell/toolkit/drawing/surface_p.h"

namespace toolkit {

/// One medium, from its opening to its end. A callback may close it, but must not destroy it. There
/// must be a backend.
class MediaPlayer {
 public:
  enum class State { closed, stopped, playing, paused };

  /// Video appears on the surface, if there is one: as large as it fits, in its own proportions.
  explicit MediaPlayer(Surface* display);
  MediaPlayer(const MediaPlayer&) = delete;
  MediaPlayer& operator=(const MediaPlayer&) = delete;

  /// Opens a file and waits, without taking input of the user, until it can play; whether it can.
  /// Close ends the wait.
  bool Open(std::unique_ptr<QFile> file);
  void Play();
  void Pause();
  void Stop();
  /// Stops, and lets go of the file.
  void Close();

  [[nodiscard]] State state() const;

  std::function<void()> state_changed;
  /// A play has come to an end: that of the medium, a stop by Stop, or a failure.
  std::function<void()> finished;

 private:
  [[nodiscard]] bool Opening() const;
  void EndPlay();
  void Show(const QVideoFrame& frame);

  QPointer<Surface> display_;
  QVideoSink frames_;
  std::unique_ptr<QFile> file_;
  std::unique_ptr<QMediaPlayer> player_;  ///< None once the medium is closed.
  bool running_ = false;                  ///< Playing, or paused while playing.
};

}  // namespace toolkit
