// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/toolkit/control.h"

namespace toolkit {

/// A frame with a caption, around the controls inside it.
class Frame : public Control, public Container {
 public:
  Frame(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);

  [[nodiscard]] Scale InnerScale() const override { return parent().InnerScale(); }
  QWidget* InnerWidget() override { return widget(); }
  Form& OwningForm() override { return parent().OwningForm(); }

 protected:
  void FontChanged() override;

 private:
  void ShowCaption();

  std::string caption_;
};

}  // namespace toolkit
