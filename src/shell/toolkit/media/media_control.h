// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "shell/toolkit/controls/control.h"

namespace toolkit {

class MediaBar;
class MediaPlayer;

enum class MediaButton { play, pause, stop };

/// A player of sound, music and video, with a bar of the buttons play, pause and stop.
class MediaControl : public Control {
 public:
  MediaControl(Container& parent, const ControlSheet& sheet);
  ~MediaControl() override;

  /// What assistive technology calls the buttons, in the host's own encoding.
  void SpokenNames(const std::string& play, const std::string& pause, const std::string& stop);

  // Set before the command "Open".
  /// "WaveAudio", "Sequencer" or "AVIVideo".
  void DeviceType(const std::string& type) { device_type_ = type; }
  void FileName(const std::string& path) { file_name_ = path; }
  /// The picture that carries the video, by its handle.
  void hWndDisplay(int handle) { display_ = handle; }

  /// "Open" gets the device ready on the start of the file. It always waits until then, for a few
  /// seconds at most, and takes no input of the user meanwhile; it shares the device with no other
  /// control. Error 53 if there is no such file, 75 if it cannot be read, 68 if the device cannot
  /// play it; ends the procedure that called it if the program ends meanwhile. "Play" starts
  /// playing and returns. Error 68 if nothing is open. "close" stops and lets go of the file;
  /// nothing need be open. Error 5 for any other command.
  void Command(std::string_view command);

  /// Whether the button can be pressed now.
  [[nodiscard]] bool CanPress(MediaButton button) const;
  /// Presses it, as a click does.
  void Press(MediaButton button);

  /// A play has come to an end: of itself, by the button stop, or by a failure. Comes from the
  /// event loop, and not after "close". The argument is always 1.
  Event<int> Done;

 private:
  void Open();
  void Play();
  void Close();
  void PlayEnded();
  [[nodiscard]] MediaBar& bar() const;

  std::string device_type_;
  std::string file_name_;
  int display_ = 0;
  std::shared_ptr<MediaPlayer> player_;
};

}  // namespace toolkit
