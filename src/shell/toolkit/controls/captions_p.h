// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

#include "shell/toolkit/controls/control.h"
#include "shell/toolkit/drawing/face_p.h"

namespace toolkit {

/// A caption in letters, with the "&" before its Alt key letter as the host wants it. The mark is
/// taken out before the letters are decoded, since the 7-bit code gives other signs new meanings.
inline QString CaptionWithMnemonic(const std::string& caption, const Face& face) {
  const std::size_t mark = caption.find('&');
  QString shown = face.Shown(caption.substr(0, mark)).replace(u'&', QStringLiteral("&&"));
  if (mark == std::string::npos) return shown;
  return shown + u'&' + face.Shown(caption.substr(mark + 1)).replace(u'&', QStringLiteral("&&"));
}

inline Qt::Alignment HostAlignment(Alignment alignment) {
  switch (alignment) {
    case Alignment::right:
      return Qt::AlignRight;
    case Alignment::center:
      return Qt::AlignHCenter;
    default:
      return Qt::AlignLeft;
  }
}

}  // namespace toolkit
