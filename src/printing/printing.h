// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "crossword/crossword.h"
#include "letters/letter_conversion.h"

class QPainter;

namespace kalvon::printing {

/// A sheet of paper. All lengths are points, 72 to the inch.
struct Paper {
  double width = 0;
  double height = 0;
  double margin = 0;  ///< Free on all four sides.
};
inline constexpr Paper a4 = {595.276, 841.89, 40};
inline constexpr Paper letter = {612, 792, 40};

/// What stands in the cells.
enum class Contents {
  empty,
  users_letters,
  solution,  ///< Empty cells, and the solution upside down at the end of the last page.
};

/// A crossword for paper. Texts are UTF-8 and may be empty.
struct Sheet {
  Crossword crossword;
  std::string title;
  std::string author;
  std::string description;
  Writing writing;  ///< Serbian texts above are in Latin letters and follow the script.
  Contents contents = Contents::empty;
};

struct Layout;

/// A crossword laid out on pages, which are the same on every device. Needs a QGuiApplication.
class Printout {
 public:
  /// Error 5 for paper that leaves less than 200 by 200 points.
  explicit Printout(const Sheet& sheet, const Paper& paper = a4);

  [[nodiscard]] int Pages() const;
  [[nodiscard]] const Layout& Laid() const { return *layout_; }

  /// Draws a page, the first being 0. The origin of the painter's device is the corner of the
  /// paper: a printer is to be set to its full page.
  void Paint(int page, QPainter& painter) const;

  /// The bytes of a file. A picture shows the pages one under the other.
  [[nodiscard]] std::string Pdf() const;
  [[nodiscard]] std::string Svg() const;
  /// `width` in pixels. Error 7 for a picture of more than 100 million pixels or 32,767 lines.
  [[nodiscard]] std::string Png(int width) const;

 private:
  std::shared_ptr<const Layout> layout_;
};

}  // namespace kalvon::printing
