// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/captioned_control.h"

namespace toolkit {

void CaptionedControl::Caption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  ShowCaption();
}

void CaptionedControl::FontChanged() {
  Control::FontChanged();
  ShowCaption();
}

}  // namespace toolkit
