// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "shell/toolkit/controls/button.h"
#include "shell/toolkit/controls/control_array.h"
#include "shell/toolkit/controls/frame.h"
#include "shell/toolkit/controls/label.h"
#include "shell/toolkit/input/picture_box.h"
#include "shell/toolkit/input/scroll_bar.h"
#include "shell/toolkit/input/text_box.h"
#include "shell/toolkit/windows/form.h"

namespace toolkit::testing {

/// A form with a control of each kind, in pixels.
class ControlForm : public Form {
 public:
  ControlForm()
      : Form({.name = "controls",
              .caption = "Controls",
              .scale = Scale::pixels,
              .inner_width = 6000,
              .inner_height = 4500}),
        button(*this, {"button", {0, 0, 60, 23}, 2, "&Re{i"}),
        box(*this, {"box", {0, 30, 100, 20}, 1}),
        many(*this, {"many", {0, 60, 100, 60}, 3}, Lines::multiple),
        bar(*this, {"bar", {120, 0, 17, 100}, 0}),
        label(*this, {"label", {0, 130, 100, 15}, 4, "Re~"}),
        picture(*this, {"picture", {150, 0, 60, 50}, 5}),
        frame(*this, {"frame", {150, 60, 200, 100}, 6, "Pismo"}) {
    options.Add(frame, {"option", {10, 20, 80, 20}, 7, "Latinica", 0});
    options.Add(frame, {"option", {10, 50, 80, 20}, 8, "YU ASCII", 1});
  }

  template <typename Kind = QWidget>
  Kind* Widget(const char* name) {
    return InnerWidget()->findChild<Kind*>(QString::fromUtf8(name));
  }

  Button button;
  TextBox box;
  TextBox many;
  ScrollBar bar;
  Label label;
  PictureBox picture;
  Frame frame;
  ControlArray<OptionButton> options;
};

}  // namespace toolkit::testing
