// SPDX-License-Identifier: MIT
#include "shell/toolkit/frame.h"

#include <QGroupBox>

#include "shell/toolkit/captions_p.h"

namespace toolkit {

Frame::Frame(Container& parent, const ControlSheet& sheet)
    : CaptionedControl(parent, sheet, std::make_unique<QGroupBox>()) {
  Caption(sheet.caption);
}

void Frame::ShowCaption() {
  static_cast<QGroupBox*>(widget())->setTitle(CaptionWithMnemonic(Caption(), FaceInUse()));
}

}  // namespace toolkit
