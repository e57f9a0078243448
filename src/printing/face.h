// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace kalvon::printing {

/// Fonts have whole pixels, so that all is measured and drawn this much larger.
inline constexpr double pixels_per_point = 10;

/// The face at a size of points.
QFont Face(double size, bool bold);

// Measures at a size of one point. The face is not hinted, so that they grow with the size.

double WidthOf(const QString& text, bool bold);
double Ascent();
/// From the ascent to the descent.
double FaceHeight();

/// From one line of text to the next.
inline constexpr double line_pitch = 1.18;

}  // namespace kalvon::printing
