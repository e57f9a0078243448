// SPDX-License-Identifier: MIT
#include "exchange/xd_sections.h"

#include <algorithm>

#include "exchange/xd_clue_line.h"

namespace kalvon::exchange {
namespace {

constexpr QStringView comment_start = u"<!--";
constexpr QStringView comment_end = u"-->";
constexpr int shown_of_a_line = 60;
/// More than any grid has rows and clues, and more sections than anybody writes.
constexpr std::size_t most_lines = 200000;
constexpr std::size_t most_sections = 100;

/// A line, blank ones too, and how many blank ones stand before it.
struct RawLine {
  XdLine line;
  int blank_before = 0;
};

std::vector<RawLine> LinesOf(const QString& text) {
  std::vector<RawLine> lines;
  int number = 0;
  int blank = 0;
  bool in_comment = false;
  for (qsizetype start = 0; start < text.size();) {
    const qsizetype found = text.indexOf(u'\n', start);
    const qsizetype end = found < 0 ? text.size() : found;
    const QStringView line = QStringView(text).mid(start, end - start).trimmed();
    ++number;
    start = end + 1;
    if (in_comment || line.startsWith(comment_start)) {
      in_comment = !line.contains(comment_end);
    } else if (line.isEmpty()) {
      ++blank;
    } else {
      if (lines.size() == most_lines) throw ConversionError(Matter::too_long);
      lines.push_back({{number, line}, blank});
      blank = 0;
    }
  }
  return lines;
}

/// The name in a heading, empty for any other line. A row of blocks has no blank in it.
QString HeadingOf(QStringView line) {
  if (!line.startsWith(u"##") || line.size() < 3 || !line[2].isSpace()) return {};
  return line.mid(2).trimmed().toString().toLower();
}

XdSections ByHeadings(const std::vector<RawLine>& lines) {
  XdSections sections;
  // What stands before the first heading can only be the metadata.
  std::vector<XdLine>* section = &sections[QStringLiteral("metadata")];
  for (const auto& [line, blank] : lines) {
    const QString heading = HeadingOf(line.text);
    if (heading.isEmpty())
      section->push_back(line);
    else
      section = &sections[heading];
    if (sections.size() > most_sections) throw ConversionError(Matter::too_long);
  }
  return sections;
}

/// The third part holds the clues, with all that follow and begin with one.
XdSections ByBlankLines(const std::vector<RawLine>& lines) {
  const QString names[] = {QStringLiteral("metadata"), QStringLiteral("grid"),
                           QStringLiteral("clues"), QStringLiteral("notes")};
  XdSections sections;
  std::size_t place = 0;
  for (const auto& [line, blank] : lines) {
    const bool starts = blank >= 2 && sections.contains(names[0]);
    if (starts && (place < 2 || (place == 2 && !ClueLineOf(line)))) ++place;
    sections[names[place]].push_back(line);
  }
  return sections;
}

}  // namespace

XdSections SectionsOfXd(const QString& text) {
  const std::vector<RawLine> lines = LinesOf(text);
  const bool has_headings = std::ranges::any_of(
      lines, [](const RawLine& raw) { return !HeadingOf(raw.line.text).isEmpty(); });
  return has_headings ? ByHeadings(lines) : ByBlankLines(lines);
}

void RefuseLine(const XdLine& line) {
  throw ConversionError(Matter::damaged_line,
                        std::to_string(line.number) + ": " +
                            line.text.left(shown_of_a_line).toString().toStdString());
}

}  // namespace kalvon::exchange
