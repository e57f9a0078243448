// SPDX-License-Identifier: MIT
#include "exchange/xd_grid.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <set>

#include "exchange/format.h"

namespace kalvon::exchange {
namespace {

constexpr char32_t block = U'#';
constexpr char32_t hole = U'_';
constexpr char32_t unknown = U'?';
/// A block where the grid has no "#", an open cell without a solution where it has.
constexpr char32_t dot = U'.';

QList<uint> CharactersOf(QStringView row) {
  return row.toString().normalized(QString::NormalizationForm_C).toUcs4();
}

bool HasBlank(QStringView row) {
  return std::ranges::any_of(row, [](QChar c) { return c.isSpace(); });
}

std::string LetterOf(char32_t character, const XdRebus& rebus) {
  if (const auto found = rebus.find(character); found != rebus.end())
    return found->second.toStdString();
  const char32_t capital = QChar::isLower(character) ? QChar::toUpper(character) : character;
  return QString::fromUcs4(&capital, 1).toStdString();
}

PuzzleCell CellOf(char32_t character, const XdRebus& rebus, bool dot_is_block) {
  if (character == block || (character == dot && dot_is_block)) return {.kind = CellKind::block};
  if (character == hole) return {.kind = CellKind::empty};
  if (rebus.contains(character)) return {.solution = LetterOf(character, rebus)};
  if (character == unknown || character == dot) return {};
  return {.solution = LetterOf(character, rebus)};
}

/// The rules of a design: the properties of each character, and what follows the last rule.
struct Design {
  std::map<QChar, QString> properties = {};
  QString grid = {};
};

Design DesignOf(const std::vector<XdLine>& lines) {
  // What is quoted is an address, and may be a whole picture.
  static const QRegularExpression unread(QStringLiteral("'[^']*'|\"[^\"]*\"|</?style>"));
  QString text;
  for (const XdLine& line : lines) text += line.text.toString() + u'\n';
  QStringList rules = text.remove(unread).split(u'}');
  Design design{.grid = rules.takeLast()};
  for (const QString& rule : rules) {
    const qsizetype body = rule.indexOf(u'{');
    for (const QString& name : rule.left(body).split(u','))
      if (const QString key = name.trimmed(); !key.isEmpty())
        design.properties[key.back()] += rule.mid(body + 1);
  }
  return design;
}

}  // namespace

XdRebus RebusOf(QStringView value) {
  XdRebus rebus;
  const QString text = value.toString().normalized(QString::NormalizationForm_C);
  for (const QString& entry : text.simplified().split(u' ')) {
    const QList<uint> characters = entry.toUcs4();
    if (characters.size() < 3 || characters[1] != U'=') continue;
    const QString cell = entry.mid(entry.indexOf(u'=', 1) + 1);
    QString& known = rebus[characters[0]];
    known += known.isEmpty() ? cell : u'/' + cell;
    if (known.size() > longest_cell) throw ConversionError(Matter::too_long);
  }
  return rebus;
}

QStringList AlternativesOf(const QString& solution) {
  const QStringList parts = solution.split(u'/');
  return parts.contains(QString()) ? QStringList(solution) : parts;
}

Puzzle ReadXdGrid(const std::vector<XdLine>& rows, const XdRebus& rebus, QStringView special,
                  Remarks& remarks) {
  if (rows.empty()) throw ConversionError(Matter::no_section, "## Grid");
  const bool dot_is_block =
      std::ranges::none_of(rows, [](const XdLine& row) { return row.text.contains(QChar(u'#')); });
  const auto width = static_cast<int>(CharactersOf(rows[0].text).size());
  Puzzle puzzle = EmptyPuzzle(width, static_cast<int>(rows.size()));
  bool has_special = false;
  std::size_t place = 0;
  for (const XdLine& row : rows) {
    const QList<uint> characters = CharactersOf(row.text);
    if (characters.size() != width || HasBlank(row.text)) RefuseLine(row);
    for (const char32_t character : characters) {
      puzzle.cells[place++] = CellOf(character, rebus, dot_is_block);
      has_special |= QChar::isLower(character);
    }
  }
  if (has_special && !special.isEmpty())
    remarks.Count(special.contains(u"shade", Qt::CaseInsensitive) ? Matter::shades_dropped
                                                                  : Matter::circles_dropped);
  return puzzle;
}

bool ReadXdEntries(const std::vector<QStringView>& rows, const XdRebus& rebus, Puzzle& puzzle) {
  std::vector<char32_t> all;
  if (rows.size() != static_cast<std::size_t>(puzzle.height)) return false;
  for (const QStringView row : rows) {
    const QList<uint> characters = CharactersOf(row);
    if (characters.size() != puzzle.width || HasBlank(row)) return false;
    std::ranges::copy(characters, std::back_inserter(all));
  }
  const std::set<char32_t> none = {dot, block, hole, unknown};
  for (std::size_t i = 0; i < all.size(); ++i) {
    PuzzleCell& cell = puzzle.cells[i];
    const bool is_none = none.contains(all[i]) && !rebus.contains(all[i]);
    if (cell.kind == CellKind::letter && !is_none) cell.entry = LetterOf(all[i], rebus);
  }
  return true;
}

void ReadXdDesign(const std::vector<XdLine>& lines, Remarks& remarks) {
  struct Drawing {
    QStringView property;
    Matter matter{};
  };
  constexpr Drawing drawings[] = {{u"image", Matter::pictures_dropped},
                                  {u"circle", Matter::circles_dropped},
                                  {u"background", Matter::shades_dropped}};
  const Design design = DesignOf(lines);
  std::set<Matter> dropped;
  for (const auto& [character, properties] : design.properties) {
    if (!design.grid.contains(character)) continue;
    if (properties.contains(u"bar-")) throw ConversionError(Matter::bars);
    for (const auto& [property, matter] : drawings) {
      if (!properties.contains(property)) continue;
      dropped.insert(matter);
      break;
    }
  }
  for (const Matter matter : dropped) remarks.Count(matter);
}

}  // namespace kalvon::exchange
