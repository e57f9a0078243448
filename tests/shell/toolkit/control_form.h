// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QWidget>

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/input/scroll_bar.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/windows/form.h"

namespace toolkit::testing {

/// A form with several controls, in pixels, that has the keys.
class ControlForm : public Form {
 public:
  ControlForm() : Form({"controls", "Controls", Border::sizeable, Scale::pixels, 6000, 4500}) {
    Show();
    QApplication::setActiveWindow(Host());
    QApplication::processEvents();
  }

  /// The host's window.
  QWidget* Host() { return InnerWidget()->window(); }
  template <typename Kind = QWidget>
  Kind* Widget(const char* name) {
    return Host()->findChild<Kind*>(QString::fromUtf8(name));
  }

  PictureBox picture{*this, {"picture", {150, 0, 60, 50}, 5}};
  Button button{*this, {"button", {0, 0, 60, 23}, 2, "&Re{i"}};
  TextBox box{*this, {"box", {0, 30, 100, 20}, 1}};
  ScrollBar bar{*this, {"bar", {120, 0, 17, 100}, 0}};
};

}  // namespace toolkit::testing
