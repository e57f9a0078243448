// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/label.h"

#include <QLabel>

#include "shell/toolkit/controls/captions_p.h"

namespace toolkit {

Label::Label(Container& parent, const ControlSheet& sheet)
    : CaptionedControl(parent, sheet, std::make_unique<QLabel>()) {
  auto* label = static_cast<QLabel*>(widget());
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Caption(sheet.caption);
}

void Label::AutoSize(bool auto_size) {
  auto_size_ = auto_size;
  static_cast<QLabel*>(widget())->setWordWrap(!auto_size);
  ShowCaption();
}

void Label::Align(Alignment alignment) {
  static_cast<QLabel*>(widget())->setAlignment(HostAlignment(alignment) | Qt::AlignTop);
}

void Label::Lift(int pixels) {
  lift_ = pixels;
  PlaceChanged();
}

void Label::PlaceChanged() {
  widget()->setContentsMargins(0, -Zoomed(lift_), 0, 0);
  // By the zoom, letters can be a little wider than their place.
  if (auto_size_ && Visible()) widget()->resize(widget()->size().expandedTo(widget()->sizeHint()));
}

void Label::Boxed() {
  auto* label = static_cast<QLabel*>(widget());
  label->setFrameStyle(QFrame::Box | QFrame::Plain);
  label->setAutoFillBackground(true);
  label->setBackgroundRole(QPalette::Base);
}

void Label::ShowCaption() {
  // No label has room for more, and laying out an endless line takes seconds.
  constexpr std::size_t characters_at_most = 4000;
  Face& face = FaceInUse();
  if (auto_size_) TakeSize(face.LayOut(Caption()).width, face.LineHeight());
  static_cast<QLabel*>(widget())->setText(
      face.Shown(Caption().substr(0, characters_at_most)).replace(u'\r', u'\n'));
}

}  // namespace toolkit
