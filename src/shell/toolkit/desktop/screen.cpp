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

}  // namespace

int Screen::Width() {
  return QGuiApplication::primaryScreen()->geometry().width() * twips_per_pixel;
}

int Screen::Height() {
  return QGuiApplication::primaryScreen()->geometry().height() * twips_per_pixel;
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
