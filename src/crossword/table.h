// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "files/run_time_error.h"

namespace kalvon {

/// A whole number that must fit 16 bits: storing another one raises error 6. The limits of a
/// crossword's size come from here.
class Int16 {
 public:
  Int16() = default;
  Int16(int value) : value_(static_cast<std::int16_t>(value)) {  // NOLINT: converts like a number
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max())
      throw files::RuntimeError(files::error::overflow);
  }
  operator int() const { return value_; }  // NOLINT: converts like a number

 private:
  std::int16_t value_ = 0;
};

/// The indexes of one dimension of a table, both ends included.
struct IndexRange {
  int lowest = 0;
  int highest = -1;

  bool operator==(const IndexRange&) const = default;
};

/// A table with named bounds for each dimension. An index out of range raises error 9. Its elements
/// come into being at the first write, so that a size that is never filled costs nothing.
template <typename Element, std::size_t Dimensions>
class Table {
 public:
  Table() = default;
  /// Error 9 for a dimension without an index.
  explicit Table(const std::array<IndexRange, Dimensions>& bounds) : bounds_(bounds) {
    for (const IndexRange& b : bounds_)
      if (b.highest < b.lowest) throw files::RuntimeError(files::error::subscript_out_of_range);
  }

  /// An element; one that was never written is empty.
  template <typename... Indexes>
  const Element& operator()(Indexes... indexes) const {
    const std::size_t place = Place({static_cast<int>(indexes)...});
    return elements_.empty() ? Empty() : elements_[place];
  }

  /// An element, to be written.
  template <typename... Indexes>
  Element& Mutable(Indexes... indexes) {
    const std::size_t place = Place({static_cast<int>(indexes)...});
    if (elements_.empty()) elements_.resize(Size());
    return elements_[place];
  }

  /// Whether both have the same bounds and the same elements, written or not.
  bool operator==(const Table& other) const {
    const auto empty = [](const Element& element) { return element == Element{}; };
    if (bounds_ != other.bounds_) return false;
    if (elements_.empty()) return std::ranges::all_of(other.elements_, empty);
    if (other.elements_.empty()) return std::ranges::all_of(elements_, empty);
    return elements_ == other.elements_;
  }

 private:
  [[nodiscard]] std::size_t Place(const std::array<int, Dimensions>& indexes) const {
    std::size_t place = 0;
    for (std::size_t d = 0; d < Dimensions; ++d) {
      const auto [lowest, highest] = bounds_[d];
      if (indexes[d] < lowest || indexes[d] > highest)
        throw files::RuntimeError(files::error::subscript_out_of_range);
      place = place * static_cast<std::size_t>(highest - lowest + 1) +
              static_cast<std::size_t>(indexes[d] - lowest);
    }
    return place;
  }

  [[nodiscard]] std::size_t Size() const {
    std::size_t size = 1;
    for (const auto [lowest, highest] : bounds_)
      size *= static_cast<std::size_t>(highest - lowest + 1);
    return size;
  }

  static const Element& Empty() {
    static const Element empty{};
    return empty;
  }

  std::array<IndexRange, Dimensions> bounds_{};
  std::vector<Element> elements_;
};

}  // namespace kalvon
