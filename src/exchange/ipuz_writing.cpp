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

/// The rows of a grid, each letter as `value_of` has it.
template <typename ValueOf>
QJsonArray Rows(const Puzzle& puzzle, ValueOf value_of) {
  QJsonArray rows;
  for (int y = 1; y <= puzzle.height; ++y) {
    QJsonArray row;
    for (int x = 1; x <= puzzle.width; ++x) {
      switch (puzzle.At({x, y}).kind) {
        case CellKind::letter:
          row.append(
              value_of(static_cast<std::size_t>(y - 1) * static_cast<std::size_t>(puzzle.width) +
                       static_cast<std::size_t>(x - 1)));
          break;
        case CellKind::block:
          row.append(QStringLiteral("#"));
          break;
        case CellKind::empty:
          row.append(QJsonValue());
          break;
      }
    }
    rows.append(row);
  }
  return rows;
}

/// A letter of the solution or of the user, the sign for empty for none.
QJsonValue Letter(const std::string& letter) {
  return letter.empty() ? QJsonValue(0) : QJsonValue(QString::fromStdString(letter));
}

/// Whether a reader that goes by the numbers finds the word of each clue.
bool NumbersLead(const Puzzle& puzzle, const std::vector<std::string>& numbers) {
  Puzzle read = puzzle;
  for (std::size_t i = 0; i < numbers.size(); ++i) read.cells[i].number = numbers[i];
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
  const std::vector<std::string> numbers = NumbersOf(puzzle);
  QJsonObject file = {
      {QStringLiteral("version"), QStringLiteral("http://ipuz.org/v2")},
      {QStringLiteral("kind"), QJsonArray{QStringLiteral("http://ipuz.org/crossword#1")}},
      {QStringLiteral("dimensions"), QJsonObject{{QStringLiteral("width"), puzzle.width},
                                                 {QStringLiteral("height"), puzzle.height}}},
      {QStringLiteral("block"), QStringLiteral("#")},
      {QStringLiteral("empty"), 0},
  };
  const std::pair<QStringView, const std::string*> texts[] = {{u"title", &puzzle.title},
                                                              {u"author", &puzzle.author},
                                                              {u"copyright", &puzzle.copyright},
                                                              {u"intro", &puzzle.description},
                                                              {u"language", &puzzle.language}};
  for (const auto& [name, text] : texts)
    if (!text->empty()) file[name] = AsMarkup(*text);

  file[u"puzzle"] = Rows(puzzle, [&](std::size_t i) {
    return numbers[i].empty() ? QJsonValue(0) : Number(numbers[i]);
  });
  if (!std::ranges::all_of(puzzle.cells, &std::string::empty, &PuzzleCell::solution))
    file[u"solution"] =
        Rows(puzzle, [&](std::size_t i) { return Letter(puzzle.cells[i].solution); });
  if (!std::ranges::all_of(puzzle.cells, &std::string::empty, &PuzzleCell::entry))
    file[u"saved"] = Rows(puzzle, [&](std::size_t i) { return Letter(puzzle.cells[i].entry); });

  const bool with_cells = !NumbersLead(puzzle, numbers);
  file[u"clues"] =
      QJsonObject{{QStringLiteral("Across"), CluesOf(puzzle, direction::across, with_cells)},
                  {QStringLiteral("Down"), CluesOf(puzzle, direction::down, with_cells)}};
  RemarkLosses(puzzle, remarks);
  return QJsonDocument(file).toJson(QJsonDocument::Compact).toStdString();
}

}  // namespace kalvon::exchange
