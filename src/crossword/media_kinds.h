// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace kalvon {

enum class Medium { picture, text, sound, music, video };

/// A kind of medium, by the ending of its name.
struct MediaKind {
  std::string_view ending;
  Medium medium;
  std::int64_t largest;  ///< Bytes; a larger one is left in its pack, as if it were not there.
};

inline constexpr std::int64_t mebibyte = std::int64_t{1024} * 1024;

/// A pack can pretend to sizes that fill the disk. The limits are those of what can be of use: a
/// picture of 4096 by 4096 pixels, more text than is ever shown, 25 minutes of a CD's sound, five
/// minutes of all that a MIDI line can carry, 25 minutes of film at the rate of a CD.
inline constexpr MediaKind media_kinds[] = {{"bmp", Medium::picture, 65 * mebibyte},
                                            {"txt", Medium::text, 64 * mebibyte},
                                            {"wav", Medium::sound, 256 * mebibyte},
                                            {"mid", Medium::music, 1 * mebibyte},
                                            {"avi", Medium::video, 256 * mebibyte}};

/// The kind with this ending, in lower case, or null.
constexpr const MediaKind* FindMediaKind(std::string_view ending) {
  const auto* const found = std::ranges::find(media_kinds, ending, &MediaKind::ending);
  return found == std::end(media_kinds) ? nullptr : found;
}

}  // namespace kalvon
