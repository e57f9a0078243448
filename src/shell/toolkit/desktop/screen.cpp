// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/screen.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "shell/toolkit/drawing/scale.h"

namespace toolkit {

namespace {

constexpr int hourglass = 11;

int mouse_pointer = 0;

/// Whole pixels of the design.
int InDesign(int pixels) { return static_cast<int>(pixels / Zoom()); }

}  // namespace

int Screen::Width() {
  return InDesign(QGuiApplication::primaryScreen()->geometry().width()) * twips_per_pixel;
}

int Screen::Height() {
  return InDesign(QGuiApplication::primaryScreen()->geometry().height()) * twips_per_pixel;
}

Screen::Area Screen::FreeArea() {
  const QSize size = QGuiApplication::primaryScreen()->availableSize();
  return {size.width(), size.height()};
}

int Screen::MousePointer() { return mouse_pointer; }

void Screen::MousePointer(int pointer) {
  if (pointer == mouse_pointer) return;
  mouse_pointer = pointer;
  if (pointer == hourglass)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace toolkit
