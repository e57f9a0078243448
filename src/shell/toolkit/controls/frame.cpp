// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/frame.h"

#include <QGroupBox>

#include "shell/toolkit/controls/captions_p.h"

namespace toolkit {

Frame::Frame(Container& parent, const ControlSheet& sheet)
    : CaptionedControl(parent, sheet, std::make_unique<QGroupBox>()) {
  Caption(sheet.caption);
}

void Frame::ShowCaption() {
  static_cast<QGroupBox*>(widget())->setTitle(CaptionWithMnemonic(Caption(), FaceInUse()));
}

}  // namespace toolkit
