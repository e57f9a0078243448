// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "shell/toolkit/controls/control.h"

namespace toolkit {

/// What a picture shows, for assistive technology: a table, or a list where there is one column.
/// The functions are asked only when that technology asks; rows and columns count from 0, texts are
/// in the host's own encoding, and a part that fails to answer has no text.
struct SpokenPicture {
  enum class Kind { none, table, list };
  Kind kind = Kind::none;

  std::function<int()> rows = [] { return 0; };
  std::function<int()> columns = [] { return 1; };
  std::function<std::string(int row, int column)> name = {};
  std::function<std::string(int row, int column)> description = {};
  std::function<bool(int row, int column)> selected = {};
  /// Pixels of the picture; a part out of sight has no width.
  std::function<Place(int row, int column)> place = {};
  /// What a click on the part does.
  std::function<void(int row, int column)> press = {};
  /// What a press of the picture as a whole does, if that can be pressed.
  std::function<void()> press_whole = {};
};

}  // namespace toolkit
