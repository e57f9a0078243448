// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

/// Scale of a form or picture: what one unit of the coordinates inside it is.
enum class Scale { twips = 1, pixels = 3 };

/// Twips to one pixel of the design.
inline constexpr int twips_per_pixel = 15;

}  // namespace toolkit
