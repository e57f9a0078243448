// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace kalvon::exchange {

/// Whether bytes begin as a zip archive does.
bool IsZip(std::string_view bytes);

/// The first file of an archive whose content passes the test. ConversionError if there is none,
/// or if the files up to it are together larger than `most` bytes, whatever the archive says of
/// their sizes.
std::string Unzip(std::string_view bytes, std::size_t most, bool (*fits)(std::string_view));

}  // namespace kalvon::exchange
