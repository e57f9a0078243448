// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/captioned_control.h"

#include "shell/toolkit/controls/replace.h"

namespace toolkit {

void CaptionedControl::Caption(const std::string& caption) {
  if (Replace(caption_, caption)) ShowCaption();
}

void CaptionedControl::FontChanged() {
  Control::FontChanged();
  ShowCaption();
}

}  // namespace toolkit
