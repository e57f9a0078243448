// SPDX-License-Identifier: MIT
#include "exchange/ipuz_cells.h"

#include <QJsonArray>
#include <QStringList>
#include <algorithm>
#include <utility>
#include <vector>

#include "exchange/clue_words.h"
#include "exchange/markup.h"

namespace kalvon::exchange {
namespace {

constexpr qsizetype longest_text = 65536;

/// The texts that stand for a block and for a cell without number.
struct Signs {
  QString block;
  QString empty;
};

QJsonValue Item(const QJsonValue& rows, GridCell cell) {
  return rows.toArray().at(cell.y - 1).toArray().at(cell.x - 1);
}

/// The letter in a cell of the solution or of the saved state. One that differs between the
/// directions is given as all of them.
QString Letter(const QJsonValue& item) {
  if (!item.isObject()) return PlainText(item);
  const QJsonObject object = item.toObject();
  if (object.contains(u"value")) return PlainText(object[u"value"]);
  QStringList letters;
  for (const QStringView direction : {u"Across", u"Down"})
    if (const QString letter = PlainText(object[direction]); !letter.isEmpty()) letters << letter;
  letters.removeDuplicates();
  return letters.isEmpty() ? PlainText(object[u"cell"]) : letters.join(u'/');
}

/// Remarks what a style shows and this program does not; its bars are added.
void ReadStyle(const QJsonObject& style, GridCell cell, Remarks& remarks,
               std::vector<std::pair<GridCell, GridCell>>& bars) {
  if (!style[u"shapebg"].toString().isEmpty()) remarks.Count(Matter::circles_dropped);
  if (style.contains(u"color") || style[u"highlight"].toBool())
    remarks.Count(Matter::shades_dropped);
  if (style.contains(u"imagebg")) remarks.Count(Matter::pictures_dropped);
  const std::pair<QChar, GridCell> sides[] = {{u'T', {cell.x, cell.y - 1}},
                                              {u'R', {cell.x + 1, cell.y}},
                                              {u'B', {cell.x, cell.y + 1}},
                                              {u'L', {cell.x - 1, cell.y}}};
  const QString barred = style[u"barred"].toString();
  for (const auto& [side, neighbour] : sides)
    if (barred.contains(side, Qt::CaseInsensitive)) bars.emplace_back(cell, neighbour);
}

QString NumberOf(const QJsonObject& cell) {
  QString number = PlainText(cell[u"cell"]);
  if (!number.isEmpty()) return number;
  const QJsonObject marks = cell[u"style"][u"mark"].toObject();
  return PlainText(marks[u"TL"]);
}

PuzzleCell ReadCell(const QJsonObject& file, GridCell place, const Signs& signs) {
  const auto solution = Item(file[u"solution"], place);
  const auto saved = Item(file[u"saved"], place);
  const auto item = file.contains(u"puzzle") ? Item(file[u"puzzle"], place) : solution;
  if (item.isNull() || item.isUndefined()) return {.kind = CellKind::empty};
  const QJsonObject cell =
      item.isObject() ? item.toObject() : QJsonObject{{QStringLiteral("cell"), item}};
  const QString number = file.contains(u"puzzle") ? NumberOf(cell) : QString();
  const QString letter = Letter(solution);
  if (number == signs.block || letter == signs.block) return {.kind = CellKind::block};
  const QString entry = Letter(saved.isNull() || saved.isUndefined() ? cell[u"value"] : saved);
  const auto shown = [&](const QString& text) {
    return text == signs.empty || text == signs.block ? std::string() : text.toStdString();
  };
  return {.solution = shown(letter), .entry = shown(entry), .number = shown(number)};
}

/// Whether the solver has to find the blocks: the solution has some, and the grid shows neither
/// them nor a number.
bool HidesBlocks(const QJsonObject& file, const Puzzle& puzzle, const Signs& signs) {
  if (!file.contains(u"puzzle")) return false;
  bool any = false;
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) {
      if (!puzzle.At({x, y}).number.empty()) return false;
      if (puzzle.At({x, y}).kind != CellKind::block) continue;
      const QJsonValue item = Item(file[u"puzzle"], {x, y});
      if (PlainText(item.isObject() ? item[u"cell"] : item) == signs.block) return false;
      any = true;
    }
  }
  return any;
}

}  // namespace

QString PlainText(const QJsonValue& value) {
  if (value.isDouble()) return QString::number(value.toInteger());
  const QString text = value.toString();
  if (text.size() > longest_text) throw ConversionError(Matter::too_long);
  return Tidy(text);
}

Puzzle ReadIpuzCells(const QJsonObject& file, Remarks& remarks) {
  const QJsonValue dimensions = file[u"dimensions"];
  const QString missing = !dimensions.isObject() ? QStringLiteral("dimensions")
                          : file.contains(u"puzzle") || file.contains(u"solution")
                              ? QString()
                              : QStringLiteral("puzzle");
  if (!missing.isEmpty()) throw ConversionError(Matter::damaged, missing.toStdString());
  Puzzle puzzle = EmptyPuzzle(PlainText(dimensions[u"width"]).toInt(),
                              PlainText(dimensions[u"height"]).toInt());

  const auto sign = [&](QStringView name, const char16_t* usual) {
    const QString text = PlainText(file[name]);
    return text.isEmpty() ? QString::fromUtf16(usual) : text;
  };
  const Signs signs = {.block = sign(u"block", u"#"), .empty = sign(u"empty", u"0")};
  std::vector<std::pair<GridCell, GridCell>> bars;
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) {
      puzzle.At({x, y}) = ReadCell(file, {x, y}, signs);
      ReadStyle(Item(file[u"puzzle"], {x, y})[u"style"].toObject(), {x, y}, remarks, bars);
    }
  }
  RefuseBars(puzzle, bars);
  if (HidesBlocks(file, puzzle, signs)) throw ConversionError(Matter::other_kind, "diagramless");
  return puzzle;
}

}  // namespace kalvon::exchange
