// SPDX-License-Identifier: MIT
#pragma once

namespace kalvon {

/// The direction of a word, and the side of its clue list. The kind of a clue number is the sum of
/// the directions of its words: 3 for both.
namespace direction {
inline constexpr int across = 1;
inline constexpr int down = 2;

constexpr int Other(int direction) { return across + down - direction; }
}  // namespace direction

/// Whether a clue of this kind has a word of the direction.
constexpr bool BelongsTo(int kind, int direction) { return (kind & direction) != 0; }

}  // namespace kalvon
