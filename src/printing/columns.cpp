// SPDX-License-Identifier: MIT
#include "printing/columns.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kalvon::printing {
namespace {

constexpr double column_gap = 14;

std::vector<QRectF> CutOff(std::vector<QRectF> frames, double bottom) {
  for (QRectF& frame : frames) frame.setBottom(std::min(frame.bottom(), bottom));
  return frames;
}

}  // namespace

double Columns::Width(int columns) const {
  const double one = (body.width() - column_gap * (count - 1)) / count;
  return one * columns + column_gap * (columns - 1);
}

int Columns::Spanned(double width) const {
  const double columns = (width + column_gap) / (Width() + column_gap);
  return std::min(static_cast<int>(std::ceil(columns - 0.001)), count);
}

std::vector<QRectF> Frames(const Columns& columns, Taken top, Taken bottom) {
  std::vector<QRectF> frames;
  for (int i = 0; i < columns.count; ++i) {
    QRectF frame = columns.body;
    frame.setLeft(frame.left() + (columns.Width() + column_gap) * i);
    frame.setWidth(columns.Width());
    if (i >= columns.count - top.columns) frame.setTop(frame.top() + top.height);
    if (i >= columns.count - bottom.columns) frame.setBottom(frame.bottom() - bottom.height);
    frames.push_back(frame);
  }
  return frames;
}

bool Fits(const ClueFlow& flow, FlowPlace from, const Columns& columns, Taken top, Taken bottom) {
  const bool meet = bottom.columns > 0 && top.height + bottom.height > columns.body.height();
  return !meet && flow.Set(from, Frames(columns, top, bottom), nullptr) == flow.End();
}

std::vector<QRectF> Balanced(const ClueFlow& flow, FlowPlace from, std::vector<QRectF> frames) {
  double enough = std::ranges::max(frames, {}, &QRectF::bottom).bottom();
  double too_little = std::ranges::min(frames, {}, &QRectF::top).top();
  while (enough - too_little > 1) {
    const double bottom = std::midpoint(enough, too_little);
    const bool fits = flow.Set(from, CutOff(frames, bottom), nullptr) == flow.End();
    (fits ? enough : too_little) = bottom;
  }
  return CutOff(std::move(frames), enough);
}

}  // namespace kalvon::printing
