// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/toolkit/control.h"

namespace toolkit {

/// A text that the user cannot change. A CR breaks the line; a longer text wraps and is cut at the
/// label's height.
class Label : public Control {
 public:
  Label(Container& parent, const ControlSheet& sheet);

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void Caption(const std::string& caption);

  /// The label takes the size of its caption, at once.
  [[nodiscard]] bool AutoSize() const { return auto_size_; }
  void AutoSize(bool auto_size);

  void Align(Alignment alignment);
  /// White, with a single border, as a small window of its own.
  void Boxed();

 protected:
  void FontChanged() override;

 private:
  void Show();

  std::string caption_;
  bool auto_size_ = false;
};

}  // namespace toolkit
