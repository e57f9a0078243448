// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>

#include "crossword/step.h"

namespace kalvon {

/// The steps that were made, and behind them those that were taken back and can be made again.
///
/// Once all of them together change more than a million cells, which takes about 100 MB, the oldest
/// are forgotten: solving and erasing the largest crossword thirty times over is below that.
class History {
 public:
  /// Adds a step that was made. Steps that were taken back are forgotten.
  void Add(Step step);
  /// Makes changes a part of the step that was made last, behind which there must be no other. Two
  /// changes of a cell become one; a step that has none left goes.
  void Extend(const Changes& changes);
  /// Adds, behind all others, a step that was made once and is taken back.
  void AddUndone(Step step);

  /// The step that was made last, or taken back last; null if there is none.
  [[nodiscard]] const Step* LastMade() const;
  [[nodiscard]] const Step* LastUndone() const;
  /// The last made counts as taken back, the last taken back as made.
  void Back();
  void Forward();

  // Positions: how many steps were made before, with those that are forgotten.

  /// That of the oldest step, the present one, and that behind all steps.
  [[nodiscard]] std::size_t First() const { return forgotten_; }
  [[nodiscard]] std::size_t Made() const { return forgotten_ + made_; }
  [[nodiscard]] std::size_t End() const { return forgotten_ + steps_.size(); }
  /// The step that leads on from a position before the end.
  [[nodiscard]] const Step& At(std::size_t position) const { return steps_[position - forgotten_]; }

  bool operator==(const History&) const = default;

 private:
  void Append(Step step);

  std::deque<Step> steps_;
  std::size_t made_ = 0;  ///< How many of them, from the first.
  std::size_t forgotten_ = 0;
  std::size_t changes_ = 0;  ///< Cells that all of them change.
};

}  // namespace kalvon
