// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "files/run_time_error.h"
#include "shell/toolkit/controls/control.h"

namespace toolkit {

/// Controls of one name, told apart by their index. The indexes may have gaps.
template <typename Kind>
class ControlArray {
 public:
  ControlArray() = default;
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray&) = delete;
  /// A control may stand in an earlier one, so the last one made goes first.
  ~ControlArray() {
    while (!controls_.empty()) controls_.pop_back();
  }

  /// Adds the control with the index of its sheet; `more` goes to its constructor.
  template <typename... More>
  Kind& Add(Container& parent, const ControlSheet& sheet, More... more) {
    return *controls_.emplace_back(std::make_unique<Kind>(parent, sheet, more...));
  }

  /// The control with this index. Error 340 if there is none.
  Kind& operator()(int index) {
    for (const auto& control : controls_)
      if (control->Index() == index) return *control;
    throw files::RuntimeError(files::error::no_such_control);
  }

  /// Applies an action to each control.
  template <typename Action>
  void ForEach(Action action) {
    for (const auto& control : controls_) action(*control);
  }

 private:
  std::vector<std::unique_ptr<Kind>> controls_;
};

}  // namespace toolkit
