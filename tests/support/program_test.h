// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <filesystem>
#include <string>

#include "document/crossword_state.h"
#include "files/scratch_folder.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_opcije.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "support/scripted_browser.h"

namespace kalvon::testing {

/// A fresh program, started in a temporary program folder, to be used as a user does: by mouse and
/// keys on the real widgets, found by the names of their controls.
class ProgramTest : public ::testing::Test {
 protected:
  /// `language` is that of the interface: 0 Serbian, 1 English.
  explicit ProgramTest(int language = 0) : language_(language) {}
  ~ProgramTest() override { Stop(); }

  void SetUp() override { Start(); }
  /// Starts the program anew in the same folder, as after an end or a crash.
  void Restart() {
    Stop();
    Start();
  }

  [[nodiscard]] std::filesystem::path folder() const { return scratch_.Host(); }
  void WriteFile(const std::string& name, const std::string& bytes) const {
    scratch_.Put(name, bytes);
  }
  [[nodiscard]] std::string ReadFile(const std::string& name) const { return scratch_.Get(name); }
  void CopySample(const std::string& name) const;

  /// The web browser of the system, which answers at once if a test does not say otherwise.
  [[nodiscard]] BrowserScript& browser() { return browser_; }

  /// Opens the dialog and clicks the file in its list. A sample is copied, unless it is there.
  void Choose(const std::string& name);
  void Load(const std::string& name);

  void ClickCell(int x, int y);
  /// Clicks a picture, at a pixel; `button` is 1 left, 2 right.
  void ClickPicture(const std::string& control, int x, int y, int button = 1);
  void ClickButton(const std::string& control);
  /// Types UTF-8 text into the widget that has the focus, a key for each letter.
  void Type(const std::string& letters);
  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

  /// 0xRRGGBB of a pixel of a picture.
  [[nodiscard]] unsigned PixelOf(const std::string& control, int x, int y) const;
  [[nodiscard]] std::string FocusedControl() const;
  template <typename Kind = QWidget>
  [[nodiscard]] Kind* Widget(const std::string& control) const {
    return dynamic_cast<Kind*>(Find(control));
  }

  void Start();
  static void Stop();

 private:
  [[nodiscard]] static QWidget* Find(const std::string& control);

  ScratchFolder scratch_;
  ScratchFolder state_;  ///< What the user's state and configuration folders hold.
  BrowserScript browser_;
  int language_;
};

}  // namespace kalvon::testing
