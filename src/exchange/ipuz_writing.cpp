// SPDX-License-Identifier: MIT
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "crossword/direction.h"
#include "exchange/clue_words.h"
#include "exchange/ipuz.h"
#include "exchange/markup.h"

namespace kalvon::exchange {
namespace {

/// A number as a number, anything else as a text.
QJsonValue Number(const std::string& number) {
  const QString text = QString::fromStdString(number);
  const int value = text.toInt();
  return value > 0 && QString::number(value) == text ? QJsonValue(value) : QJsonValue(text);
}

/// A sign that no cell holds: the usual one, as often as it takes.
std::string UnusedSign(const Puzzle& puzzle, char usual) {
  std::string sign(1, usual);
  const auto uses = [&](const PuzzleCell& cell) {
    return cell.number == sign || cell.solution == sign || cell.entry == sign;
  };
  while (std::ranges::any_of(puzzle.cells, uses)) sign += usual;
  return sign;
}

/// The signs of blocks and of cells without a number or letter.
struct Signs {
  QJsonValue block;
  QJsonValue empty;
};

/// The rows of a grid with one of the texts of each letter.
QJsonArray Rows(const Puzzle& puzzle, const Signs& signs, std::string PuzzleCell::*text) {
  QJsonArray rows;
  for (int y = 1; y <= puzzle.height; ++y) {
    QJsonArray row;
    for (int x = 1; x <= puzzle.width; ++x) {
      const PuzzleCell& cell = puzzle.At({x, y});
      const std::string& shown = cell.*text;
      if (cell.kind == CellKind::empty)
        row.append(QJsonValue());
      else if (cell.kind == CellKind::block)
        row.append(signs.block);
      else if (shown.empty())
        row.append(signs.empty);
      else
        row.append(text == &PuzzleCell::number ? Number(shown)
                                               : QJsonValue(QString::fromStdString(shown)));
    }
    rows.append(row);
  }
  return rows;
}

/// Whether a reader that goes by the numbers finds the word of each clue.
bool NumbersLead(const Puzzle& puzzle) {
  Puzzle read = puzzle;
  read.clues.clear();
  std::vector<ListedClue> clues;
  for (const PuzzleClue& clue : puzzle.clues) {
    clues.push_back({.clue = clue});
    clues.back().clue.cell = {};
  }
  PlaceClues(read, std::move(clues));
  return read.clues == puzzle.clues;
}

QJsonArray CellsOf(const Puzzle& puzzle, const PuzzleClue& clue) {
  QJsonArray cells;
  for (const GridCell cell : WordFrom(puzzle, clue.cell, clue.direction))
    cells.append(QJsonArray{cell.x, cell.y});
  return cells;
}

QJsonArray CluesOf(const Puzzle& puzzle, int direction, bool with_cells) {
  QJsonArray list;
  for (const PuzzleClue& clue : puzzle.clues) {
    if (clue.direction != direction) continue;
    const QString enumeration = QString::fromStdString(EnumerationOf(puzzle, clue));
    const QString text = AsMarkup(clue.text);
    if (!with_cells && enumeration.isEmpty() && !clue.number.empty()) {
      list.append(QJsonArray{Number(clue.number), text});
      continue;
    }
    QJsonObject object = {{QStringLiteral("clue"), text}};
    if (!clue.number.empty()) object[u"number"] = Number(clue.number);
    if (!enumeration.isEmpty()) object[u"enumeration"] = enumeration;
    if (with_cells) object[u"cells"] = CellsOf(puzzle, clue);
    list.append(object);
  }
  return list;
}

}  // namespace

std::string WriteIpuz(const Puzzle& puzzle, Remarks& remarks) {
  const Puzzle numbered = Numbered(puzzle);
  const std::string empty = UnusedSign(numbered, '0');
  const Signs signs = {.block = QString::fromStdString(UnusedSign(numbered, '#')),
                       .empty = empty == "0" ? QJsonValue(0) : QString::fromStdString(empty)};
  QJsonObject file = {
      {QStringLiteral("version"), QStringLiteral("http://ipuz.org/v2")},
      {QStringLiteral("kind"), QJsonArray{QStringLiteral("http://ipuz.org/crossword#1")}},
      {QStringLiteral("dimensions"), QJsonObject{{QStringLiteral("width"), numbered.width},
                                                 {QStringLiteral("height"), numbered.height}}},
      {QStringLiteral("block"), signs.block},
      {QStringLiteral("empty"), signs.empty},
      {QStringLiteral("puzzle"), Rows(numbered, signs, &PuzzleCell::number)},
  };
  const std::pair<QStringView, const std::string*> texts[] = {{u"title", &numbered.title},
                                                              {u"author", &numbered.author},
                                                              {u"copyright", &numbered.copyright},
                                                              {u"intro", &numbered.description},
                                                              {u"language", &numbered.language}};
  for (const auto& [name, text] : texts)
    if (!text->empty()) file[name] = AsMarkup(*text);
  const std::pair<QStringView, std::string PuzzleCell::*> letters[] = {
      {u"solution", &PuzzleCell::solution}, {u"saved", &PuzzleCell::entry}};
  for (const auto& [name, text] : letters)
    if (!std::ranges::all_of(numbered.cells, &std::string::empty, text))
      file[name] = Rows(numbered, signs, text);

  const bool with_cells = !NumbersLead(numbered);
  file[u"clues"] =
      QJsonObject{{QStringLiteral("Across"), CluesOf(numbered, direction::across, with_cells)},
                  {QStringLiteral("Down"), CluesOf(numbered, direction::down, with_cells)}};
  RemarkLosses(numbered, remarks);
  return QJsonDocument(file).toJson(QJsonDocument::Compact).toStdString();
}

}  // namespace kalvon::exchange
