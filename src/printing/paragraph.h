// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace kalvon::printing {

/// A line of a paragraph: a part of its text, and its width at one point.
struct Line {
  qsizetype first = 0;
  qsizetype length = 0;
  double width = 0;
};

/// A text whose words are measured once, to be broken into lines often.
class Paragraph {
 public:
  /// White space becomes single blanks; characters that nobody sees go.
  explicit Paragraph(const QString& text, bool bold = false);

  [[nodiscard]] bool IsEmpty() const { return text_.isEmpty(); }

  /// Of all words side by side at a size of one point, without their blanks.
  [[nodiscard]] double Width() const;
  /// The lines at a size of one point: none is wider than `width`, the first leaves `indent` free.
  /// A word that is too wide is broken. There is at least one line.
  [[nodiscard]] std::vector<Line> Lines(double width, double indent = 0) const;
  [[nodiscard]] QString TextOf(const Line& line) const {
    return text_.sliced(line.first, line.length);
  }

 private:
  /// A word, or a part of a very long one.
  struct Word {
    qsizetype first;
    qsizetype length;
    double width;
    bool begins;  ///< A blank stands before it.
  };
  /// The longest beginning of the word that is no wider, at least one character.
  [[nodiscard]] Word Beginning(const Word& word, double width) const;
  [[nodiscard]] Word Measured(qsizetype first, qsizetype length, bool begins) const;

  QString text_;
  bool bold_;
  std::vector<Word> words_;
};

}  // namespace kalvon::printing
