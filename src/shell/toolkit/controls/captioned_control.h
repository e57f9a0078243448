// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/toolkit/controls/control.h"

namespace toolkit {

/// A control with a caption, which it shows in its font.
class CaptionedControl : public Control {
 public:
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);

 protected:
  using Control::Control;

  virtual void ShowCaption() = 0;
  void FontChanged() override;

 private:
  std::string caption_;
};

}  // namespace toolkit
