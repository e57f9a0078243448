// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class QFile;

namespace toolkit {

/// A device, and the marks by which it knows its files: at the beginning, and at byte 8.
struct MediaDevice {
  std::string_view type;
  std::string_view mark;
  std::string_view kind;
  bool shows_video;
};

/// The device of a type, or null.
const MediaDevice* FindMediaDevice(std::string_view type);

/// Whether an open file is one for the device. Files come from strangers: the host's player knows
/// kinds that fetch others from afar, and takes all the memory that a film's head asks for.
bool Takes(const MediaDevice& device, QFile& file);

}  // namespace toolkit
