// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace kalvon {

/// Cuts off what stands behind the last chunk of a wave file and is too short to be one: the host's
/// player gives up a sound for it, even for the byte that pads an odd chunk. Errors as for
/// BinaryReader and CutOff.
void CutOffTail(const std::string& path);

}  // namespace kalvon
