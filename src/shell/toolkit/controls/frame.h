// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/controls/captioned_control.h"

namespace toolkit {

/// A frame with a caption, around the controls inside it.
class Frame : public CaptionedControl, public Container {
 public:
  Frame(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] Scale InnerScale() const override { return parent().InnerScale(); }
  [[nodiscard]] QWidget* InnerWidget() const override { return widget(); }
  Window& OwningWindow() override { return parent().OwningWindow(); }

 protected:
  void ShowCaption() override;
};

}  // namespace toolkit
