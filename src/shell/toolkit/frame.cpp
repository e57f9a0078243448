// SPDX-License-Identifier: MIT
#include "shell/toolkit/frame.h"

#include <QGroupBox>

#include "shell/toolkit/captions_p.h"

namespace toolkit {

Frame::Frame(Container& parent, const ControlSheet& sheet)
    : Control(parent, sheet, std::make_unique<QGroupBox>()) {
  Caption(sheet.caption);
}

void Frame::Caption(const std::string& caption) {
  caption_ = caption;
  ShowCaption();
}

void Frame::FontChanged() {
  Control::FontChanged();
  ShowCaption();
}

void Frame::ShowCaption() {
  static_cast<QGroupBox*>(widget())->setTitle(CaptionWithMnemonic(caption_, FaceInUse()));
}

}  // namespace toolkit
