// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/scale.h"

#include <QApplication>
#include <cmath>

#include "shell/toolkit/drawing/face_p.h"

namespace toolkit {

namespace {

double zoom = 1;

}  // namespace

double Zoom() { return zoom; }

void Zoom(double factor) {
  zoom = factor;
  QApplication::setFont(Face::Of("MS Sans Serif", 8.25, false, 0).ZoomedFont());
}

int Zoomed(double pixels) { return static_cast<int>(std::lround(pixels * zoom)); }

}  // namespace toolkit
