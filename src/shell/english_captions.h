// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// Writes the captions and the help text of the English interface over those of the forms. The load
/// dialog gets its own when it opens.
void WriteEnglishCaptions();

}  // namespace kalvon
