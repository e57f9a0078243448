// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <cstddef>
#include <span>
#include <vector>

#include "printing/clue_texts.h"
#include "printing/layout.h"

namespace kalvon::printing {

/// Where a setting of the clues has come to: the line of a clue that is next.
struct FlowPlace {
  std::size_t entry = 0;
  std::size_t line = 0;

  bool operator==(const FlowPlace&) const = default;
};

/// Clues broken into lines for columns of one width, to be set into frames. Lengths are points.
class ClueFlow {
 public:
  /// The entries must outlive it.
  ClueFlow(std::span<const Entry> entries, double size, double width);

  /// Sets the clues from a place on into frames, as far as they go, and draws them unless `drawing`
  /// is null. Returns the place behind the last line. A heading stays with its first clue, and a
  /// clue is not divided unless it is long.
  FlowPlace Set(FlowPlace from, std::span<const QRectF> frames, Drawing* drawing) const;

  [[nodiscard]] FlowPlace End() const { return {.entry = entries_.size(), .line = 0}; }

 private:
  /// The lines of an entry that no frame divides.
  [[nodiscard]] double Undivided(FlowPlace place) const;
  /// The same, with the first clue below a heading.
  [[nodiscard]] double Together(FlowPlace place) const;
  [[nodiscard]] bool IsHeading(std::size_t entry) const { return entries_[entry].number.isEmpty(); }
  [[nodiscard]] double SizeOf(std::size_t entry) const;
  [[nodiscard]] double LineHeight(std::size_t entry) const;
  void Draw(FlowPlace place, QPointF at, Drawing& drawing) const;

  std::span<const Entry> entries_;
  double size_;
  double gutter_ = 0;  ///< For the numbers.
  std::vector<std::vector<Line>> lines_;
};

}  // namespace kalvon::printing
