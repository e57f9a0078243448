// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

struct Screen {
  // Size in twips of the design.
  static int Width();
  static int Height();
  /// Pixels of the host that no panel of the desktop takes.
  struct Area {
    int width = 0;
    int height = 0;
  };
  static Area FreeArea();
  /// 0 default, 11 hourglass.
  static int MousePointer();
  static void MousePointer(int pointer);
};

/// Shows the hourglass until the end of the block, also if the program ends in it.
class Hourglass {
 public:
  Hourglass() { Screen::MousePointer(11); }
  ~Hourglass() { Screen::MousePointer(0); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace toolkit
