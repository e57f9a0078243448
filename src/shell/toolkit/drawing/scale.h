// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

/// Scale of a form or picture: what one unit of the coordinates inside it is.
enum class Scale { twips = 1, pixels = 3 };

/// Twips to one pixel of the design.
inline constexpr int twips_per_pixel = 15;

// All coordinates, sizes and measures are those of the design. Only what the host is told of them
// is multiplied by the zoom, which is the same for all forms.

/// Pixels of the host to one pixel of the design.
double Zoom();
/// For forms that are made from now on, and what has no font of its own.
void Zoom(double factor);

/// The nearest pixel of the host to a distance from an edge.
int Zoomed(double pixels);

}  // namespace toolkit
