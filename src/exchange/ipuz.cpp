// SPDX-License-Identifier: MIT
#include "exchange/ipuz.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>

#include "crossword/direction.h"
#include "exchange/clue_words.h"
#include "exchange/ipuz_cells.h"
#include "exchange/markup.h"

namespace kalvon::exchange {
namespace {

/// More values than the largest crossword has, and few enough for the parser's memory.
constexpr int most_values = 1'000'000;
constexpr std::size_t longest_string = std::size_t{1} << 20;

/// The JSON of a file, without a byte order mark and without a call of a function around it.
std::string_view JsonOf(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
  if (!bytes.starts_with("ipuz")) return bytes;
  const std::size_t open = bytes.find_first_not_of(" \t\r\n", 4);
  const std::size_t close = bytes.rfind(')');
  if (open == std::string_view::npos || bytes[open] != '(' || close == std::string_view::npos)
    return {};
  bytes = bytes.substr(open + 1, close - open - 1);
  return bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
}

/// The parser keeps all values at once, so what would fill the memory is refused before.
void RefuseTooMany(std::string_view json) {
  int values = 0;
  std::size_t length = 0;
  bool in_string = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char character = json[i];
    if (character == '"') {
      in_string = !in_string;
      length = 0;
    } else if (in_string) {
      if (character == '\\') ++i;
      ++length;
    } else if (character == ',' || character == '[' || character == '{') {
      ++values;
    }
    if (values > most_values || length > longest_string) throw ConversionError(Matter::too_long);
  }
}

QJsonObject Parse(std::string_view bytes) {
  if (bytes.size() > largest_file) throw ConversionError(Matter::too_long);
  const std::string_view json = JsonOf(bytes);
  RefuseTooMany(json);
  QJsonParseError error;
  const auto document = QJsonDocument::fromJson(
      QByteArray::fromRawData(json.data(), static_cast<qsizetype>(json.size())), &error);
  if (error.error != QJsonParseError::NoError)
    throw ConversionError(Matter::damaged, "JSON, " + std::to_string(error.offset));
  return document.object();
}

/// Ends the conversion for a kind of puzzle that is no plain crossword.
void RefuseOtherKinds(const QJsonObject& file) {
  QStringList kinds;
  if (file[u"kind"].isString()) kinds << PlainText(file[u"kind"]);
  for (const auto& kind : file[u"kind"].toArray()) kinds << PlainText(kind);
  for (const QString& kind : kinds) {
    const QString name = kind.section(u'#', 0, 0).section(u'/', -1);
    for (const char* other : {"diagramless", "arrow", "code", "acrostic", "fill", "filippine"})
      if (name.contains(QLatin1String(other), Qt::CaseInsensitive))
        throw ConversionError(Matter::other_kind, name.toStdString());
  }
  const bool crossword = std::ranges::any_of(
      kinds, [](const QString& kind) { return kind.contains(u"crossword", Qt::CaseInsensitive); });
  if (!kinds.isEmpty() && !crossword) {
    throw ConversionError(Matter::other_kind,
                          kinds.first().section(u'#', 0, 0).section(u'/', -1).toStdString());
  }
}

std::string Text(const QJsonValue& value) { return WithoutMarkup(PlainText(value)).toStdString(); }

/// The cells that a clue lists, as the file counts them.
std::optional<std::vector<GridCell>> ReadCells(const QJsonValue& cells) {
  if (!cells.isArray()) return std::nullopt;
  const auto number = [](const QJsonValue& value) {
    return std::clamp(PlainText(value).toInt(), -1, most_values);
  };
  std::vector<GridCell> list;
  for (const auto& cell : cells.toArray()) list.push_back({number(cell[0]), number(cell[1])});
  return list;
}

/// The first of several numbers.
QString NumberOf(const QJsonObject& clue) {
  for (const QJsonValue& value : {clue[u"number"], clue[u"numbers"][0], clue[u"label"]})
    if (QString number = PlainText(value); !number.isEmpty()) return number;
  return {};
}

ListedClue ReadClue(const QJsonValue& value, int direction) {
  ListedClue listed = {.clue = {.direction = direction}};
  if (value.isArray()) {
    const auto number = value[0];
    listed.clue.number =
        PlainText(number.isArray() ? number.toArray().at(0) : number).toStdString();
    listed.clue.text = Text(value[1]);
  } else if (value.isObject()) {
    const QJsonObject clue = value.toObject();
    listed.clue.number = NumberOf(clue).toStdString();
    listed.clue.text = Text(clue[u"clue"]);
    listed.cells = ReadCells(clue[u"cells"]);
    listed.enumeration = PlainText(clue[u"enumeration"]);
  } else {
    listed.clue.text = Text(value);
  }
  return listed;
}

/// Some programs count the cells of clues from 0, most from 1. The numbers tell which, if one of
/// them is 0 or a cell would be none of a word.
void CountFromOne(const Puzzle& puzzle, std::vector<ListedClue>& clues) {
  const auto any = [&](auto test) {
    return std::ranges::any_of(clues, [&](const ListedClue& listed) {
      return listed.cells && std::ranges::any_of(*listed.cells, test);
    });
  };
  const bool fits = !any([&](GridCell cell) { return !puzzle.HasLetter(cell); });
  const bool fits_from_zero = !any([&](GridCell cell) {
    return !puzzle.HasLetter({cell.x + 1, cell.y + 1});
  });
  if (fits || !fits_from_zero) return;
  for (ListedClue& listed : clues)
    if (listed.cells)
      for (GridCell& cell : *listed.cells) cell = {cell.x + 1, cell.y + 1};
}

void ReadClues(const QJsonObject& lists, Puzzle& puzzle) {
  std::vector<ListedClue> clues;
  int place = 0;
  for (auto list = lists.begin(); list != lists.end(); ++list, ++place) {
    int direction = DirectionOfTitle(list.key());
    if (direction == 0 && lists.size() == 2)
      direction = place == 0 ? direction::across : direction::down;
    for (const auto& clue : list.value().toArray()) clues.push_back(ReadClue(clue, direction));
  }
  CountFromOne(puzzle, clues);
  PlaceClues(puzzle, std::move(clues));
}

std::string LanguageOf(const QJsonObject& file) {
  for (const QStringView name : {u"language", u"locale", u"org.libipuz:locale"}) {
    for (const char* language : {"sr", "en"})
      if (PlainText(file[name]).startsWith(QLatin1String(language), Qt::CaseInsensitive))
        return language;
  }
  return {};
}

}  // namespace

bool IsIpuz(std::string_view bytes) {
  return JsonOf(bytes).starts_with('{') && bytes.find("ipuz.org") != std::string_view::npos;
}

Puzzle ReadIpuz(std::string_view bytes, Remarks& remarks) {
  const QJsonObject file = Parse(bytes);
  RefuseOtherKinds(file);
  Puzzle puzzle = ReadIpuzCells(file, remarks);
  puzzle.title = Text(file[u"title"]);
  puzzle.author = Text(file[u"author"]);
  puzzle.copyright = Text(file[u"copyright"]);
  puzzle.description = Text(file[u"intro"]);
  if (const std::string notes = Text(file[u"notes"]); !notes.empty())
    puzzle.description += puzzle.description.empty() ? notes : ' ' + notes;
  puzzle.language = LanguageOf(file);
  ReadClues(file[u"clues"].toObject(), puzzle);
  return puzzle;
}

}  // namespace kalvon::exchange
