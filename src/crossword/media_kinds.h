// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kalvon {

enum class Medium { picture, text, sound, music, video };

/// A kind of medium, by the ending of its name.
struct MediaKind {
  std::string_view ending;
  Medium medium;
};

inline constexpr MediaKind media_kinds[] = {{"bmp", Medium::picture},
                                            {"txt", Medium::text},
                                            {"wav", Medium::sound},
                                            {"mid", Medium::music},
                                            {"avi", Medium::video}};

/// The kind with this ending, in lower case, or null.
constexpr const MediaKind* FindMediaKind(std::string_view ending) {
  const auto* const found = std::ranges::find(media_kinds, ending, &MediaKind::ending);
  return found == std::end(media_kinds) ? nullptr : found;
}

}  // namespace kalvon
