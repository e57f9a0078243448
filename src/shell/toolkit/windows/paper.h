// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class QPainter;

namespace toolkit {

/// Pages that are laid out for a sheet of paper.
struct PrintedPages {
  int count = 0;
  /// Draws a page, the first being 0, from the corner of the paper.
  std::function<void(int page, QPainter& painter)> paint = {};
};

/// Lays pages out for paper of this size. Points, 72 to the inch.
using PagesFor = std::function<PrintedPages(double width, double height)>;

/// Shows pages as they would be printed, in the desktop's own preview with its print dialog, and
/// prints them. It comes from a library of its own, which is loaded when it is first needed. Error
/// 53 if that is not installed.
void Print(const std::string& title, const PagesFor& pages);

}  // namespace toolkit
