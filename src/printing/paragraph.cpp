// SPDX-License-Identifier: MIT
#include "printing/paragraph.h"

#include <algorithm>
#include <numeric>

#include "printing/face.h"

namespace kalvon::printing {
namespace {

/// Longer words are measured in parts, since one of them may be as long as a file.
constexpr qsizetype longest_part = 64;

QString Visible(const QString& text) {
  QString visible;
  visible.reserve(text.size());
  for (const QChar c : text) {
    const bool format = c.category() == QChar::Other_Format;
    if (c.isSpace() || c.category() == QChar::Other_Control)
      visible += u' ';
    else if (!format)
      visible += c;
  }
  return visible.simplified();
}

/// A length that parts no pair of surrogates.
qsizetype Whole(const QString& text, qsizetype first, qsizetype length) {
  const bool parts = first + length < text.size() && text[first + length].isLowSurrogate();
  return parts ? length + 1 : length;
}

}  // namespace

Paragraph::Paragraph(const QString& text, bool bold) : text_(Visible(text)), bold_(bold) {
  for (qsizetype first = 0; first < text_.size();) {
    qsizetype end = text_.indexOf(u' ', first);
    if (end < 0) end = text_.size();
    for (bool begins = true; first < end; begins = false) {
      const qsizetype length = Whole(text_, first, std::min(end - first, longest_part));
      words_.push_back(Measured(first, length, begins));
      first += length;
    }
    first = end + 1;
  }
}

Paragraph::Word Paragraph::Measured(qsizetype first, qsizetype length, bool begins) const {
  return {first, length, WidthOf(text_.sliced(first, length), bold_), begins};
}

Paragraph::Word Paragraph::Beginning(const Word& word, double width) const {
  Word longest = Measured(word.first, Whole(text_, word.first, 1), word.begins);
  for (qsizetype low = longest.length, high = word.length; high - low > 1;) {
    const qsizetype middle = std::midpoint(low, high);
    const Word tried = Measured(word.first, Whole(text_, word.first, middle), word.begins);
    if (tried.width <= width) {
      longest = tried;
      low = middle;
    } else {
      high = middle;
    }
  }
  return longest;
}

double Paragraph::Width() const {
  double width = 0;
  for (const Word& word : words_) width += word.width;
  return width;
}

std::vector<Line> Paragraph::Lines(double width, double indent) const {
  const double blank = WidthOf(QStringLiteral(" "), bold_);
  std::vector<Line> lines(1);
  double room = width - indent;
  for (Word word : words_) {
    while (true) {
      Line& line = lines.back();
      const double gap = word.begins && line.length > 0 ? blank : 0;
      if (line.width + gap + word.width <= room) {
        if (line.length == 0) line.first = word.first;
        line.length = word.first + word.length - line.first;
        line.width += gap + word.width;
        break;
      }
      const bool is_free = line.length == 0 && room >= width;
      if (is_free) {
        const Word part = Beginning(word, width);
        line = {part.first, part.length, part.width};
        if (part.length == word.length) break;
        word = Measured(part.first + part.length, word.length - part.length, false);
      }
      lines.emplace_back();
      room = width;
    }
  }
  return lines;
}

}  // namespace kalvon::printing
