// SPDX-License-Identifier: MIT
#include "printing/clue_flow.h"

#include <algorithm>

#include "printing/face.h"

namespace kalvon::printing {
namespace {

// In sizes of the letters.
constexpr double heading_size = 1.2;
constexpr double number_gap = 0.35;
constexpr double sign_size = 0.85;
constexpr double sign_room = 1.15;
constexpr double above_heading = 0.7;
constexpr double above_clue = 0.22;

/// Clues of more lines are divided where a frame ends.
constexpr std::size_t undivided_lines = 6;

}  // namespace

ClueFlow::ClueFlow(std::span<const Entry> entries, double size, double width)
    : entries_(entries), size_(size) {
  for (const Entry& entry : entries)
    gutter_ = std::max(gutter_, (WidthOf(entry.number, true) + number_gap) * size);
  lines_.reserve(entries.size());
  for (const Entry& entry : entries) {
    const bool heading = entry.number.isEmpty();
    const double em = heading ? size * heading_size : size;
    lines_.push_back(
        entry.text.Lines((heading ? width : width - gutter_) / em, entry.medium ? sign_room : 0));
  }
}

double ClueFlow::SizeOf(std::size_t entry) const {
  return IsHeading(entry) ? size_ * heading_size : size_;
}

double ClueFlow::LineHeight(std::size_t entry) const { return SizeOf(entry) * line_pitch; }

double ClueFlow::Undivided(FlowPlace place) const {
  const std::size_t left = lines_[place.entry].size() - place.line;
  const bool divided = !IsHeading(place.entry) && (place.line > 0 || left > undivided_lines);
  return LineHeight(place.entry) * static_cast<double>(divided ? 1 : left);
}

double ClueFlow::Together(FlowPlace place) const {
  const FlowPlace next = {place.entry + 1, 0};
  if (!IsHeading(place.entry) || next == End()) return Undivided(place);
  return Undivided(place) + size_ * above_clue + Undivided(next);
}

FlowPlace ClueFlow::Set(FlowPlace from, std::span<const QRectF> frames, Drawing* drawing) const {
  FlowPlace place = from;
  for (const QRectF& frame : frames) {
    double y = frame.top();
    while (place != End()) {
      if (place.line == 0 && y > frame.top())
        y += size_ * (IsHeading(place.entry) ? above_heading : above_clue);
      if (y + Together(place) > frame.bottom()) break;

      const double height = LineHeight(place.entry);
      const std::size_t end = lines_[place.entry].size();
      while (place.line < end && y + height <= frame.bottom()) {
        if (drawing) Draw(place, {frame.left(), y}, *drawing);
        ++place.line;
        y += height;
      }
      if (place.line < end) break;
      place = {.entry = place.entry + 1, .line = 0};
    }
  }
  return place;
}

void ClueFlow::Draw(FlowPlace place, QPointF at, Drawing& drawing) const {
  const Entry& entry = entries_[place.entry];
  const Line& line = lines_[place.entry][place.line];
  const double size = SizeOf(place.entry);
  const bool heading = IsHeading(place.entry);
  const auto add = [&](double x, const QString& text, double width, bool bold) {
    drawing.texts.push_back({{x, at.y(), width * size, FaceHeight() * size}, text, size, bold});
  };

  double left = at.x() + (heading ? 0 : gutter_);
  if (place.line == 0 && !heading) {
    const double width = WidthOf(entry.number, true);
    add(left - (width + number_gap) * size, entry.number, width, true);
    if (entry.medium) {
      const double top = at.y() + (FaceHeight() - sign_size) / 2 * size;
      drawing.signs.push_back({{left, top, sign_size * size, sign_size * size}, *entry.medium});
      left += sign_room * size;
    }
  }
  if (line.length > 0) add(left, entry.text.TextOf(line), line.width, heading);
}

}  // namespace kalvon::printing
