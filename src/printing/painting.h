// SPDX-License-Identifier: MIT
#pragma once

#include "printing/layout.h"

class QPainter;

namespace kalvon::printing {

/// Draws a page in points, with its corner at the painter's origin.
void PaintPage(const Page& page, const Paper& paper, QPainter& painter);

}  // namespace kalvon::printing
