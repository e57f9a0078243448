// SPDX-License-Identifier: MIT
#include "exchange/clue_words.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <map>
#include <set>

#include "crossword/direction.h"

namespace kalvon::exchange {
namespace {

/// Twice the cells of the largest crossword.
constexpr std::size_t most_clues = 32766;

constexpr GridCell Next(GridCell cell, int direction, int steps = 1) {
  return direction == direction::across ? GridCell{cell.x + steps, cell.y}
                                        : GridCell{cell.x, cell.y + steps};
}

/// How a conversion speaks of a clue.
std::string NameOf(const PuzzleClue& clue) {
  if (!clue.number.empty()) return clue.number;
  return clue.text.empty() ? "?" : clue.text;
}

/// Whether cells are a whole word, from its first to its last one, in a direction.
bool AreWord(const Puzzle& puzzle, const std::vector<GridCell>& cells, int direction) {
  return !puzzle.HasLetter(Next(cells.front(), direction, -1)) &&
         !puzzle.HasLetter(Next(cells.back(), direction));
}

/// The straight line with which a list of cells goes on from a place, and its direction, 0 if it
/// turns at once.
std::pair<std::vector<GridCell>, int> LineFrom(const std::vector<GridCell>& cells,
                                               std::size_t from) {
  std::vector<GridCell> line = {cells[from]};
  for (const int direction : {direction::across, direction::down}) {
    for (std::size_t i = from + 1; i < cells.size() && cells[i] == Next(line.back(), direction);
         ++i)
      line.push_back(cells[i]);
    if (line.size() > 1) return {line, direction};
  }
  return {line, 0};
}

/// Finds the word of a clue whose cells the file lists. Linked clues list those of several words.
void PlaceByCells(const Puzzle& puzzle, ListedClue& listed) {
  PuzzleClue& clue = listed.clue;
  const std::vector<GridCell>& cells = *listed.cells;
  for (const GridCell cell : cells)
    if (!puzzle.HasLetter(cell)) throw ConversionError(Matter::damaged, NameOf(clue));
  if (cells.size() == 1) {
    if (clue.direction == 0 || AreWord(puzzle, cells, clue.direction)) return;
    throw ConversionError(Matter::bars);
  }
  for (std::size_t from = 0; from < cells.size();) {
    const auto [line, direction] = LineFrom(cells, from);
    if (direction == 0) throw ConversionError(Matter::bent_word, NameOf(clue));
    if (!AreWord(puzzle, line, direction)) {
      if (line.size() < cells.size()) throw ConversionError(Matter::bent_word, NameOf(clue));
      throw ConversionError(Matter::bars);
    }
    if (from == 0) {
      clue.direction = direction;
      clue.cell = line.front();
    }
    from += line.size();
  }
}

/// The words of a grid, as clues without cells find them.
class Words {
 public:
  Words(const Puzzle& puzzle, bool from_zero) {
    for (const WordStart& start : WordStarts(puzzle)) {
      for (const int direction : {direction::across, direction::down}) {
        if (!BelongsTo(start.kind, direction)) continue;
        words_[direction].push_back(start.cell);
        const std::string& label = puzzle.At(start.cell).number;
        if (!label.empty()) labels_.emplace(std::pair(direction, label), start.cell);
        usual_.emplace(std::pair(direction, std::to_string(start.number - (from_zero ? 1 : 0))),
                       start.cell);
      }
    }
    for (const PuzzleCell& cell : puzzle.cells)
      if (!cell.number.empty()) printed_.insert(cell.number);
  }

  /// (0, 0) if there is none.
  [[nodiscard]] GridCell OfNumber(const PuzzleClue& clue) const {
    const auto& numbers = printed_.contains(clue.number) ? labels_ : usual_;
    const auto found = numbers.find({clue.direction, clue.number});
    return found == numbers.end() ? GridCell{} : found->second;
  }
  [[nodiscard]] const std::vector<GridCell>& Of(int direction) { return words_[direction]; }

 private:
  std::map<int, std::vector<GridCell>> words_;
  std::map<std::pair<int, std::string>, GridCell> labels_;
  std::map<std::pair<int, std::string>, GridCell> usual_;
  std::set<std::string> printed_;
};

/// Gives clues that nothing else has placed the words at their places in the list.
void PlaceByOrder(Words& words, std::vector<ListedClue>& clues, int direction) {
  std::vector<ListedClue*> list;
  std::set<GridCell> taken;
  for (ListedClue& listed : clues) {
    if (listed.clue.direction != direction) continue;
    list.push_back(&listed);
    taken.insert(listed.clue.cell);
  }
  const std::vector<GridCell>& cells = words.Of(direction);
  if (list.size() != cells.size()) return;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (list[i]->clue.cell == GridCell{} && !list[i]->cells && !taken.contains(cells[i]))
      list[i]->clue.cell = cells[i];
}

void PlaceByNumber(const Puzzle& puzzle, std::vector<ListedClue>& clues) {
  const bool from_zero =
      std::ranges::any_of(clues, [](const ListedClue& each) { return each.clue.number == "0"; }) &&
      std::ranges::all_of(puzzle.cells, &std::string::empty, &PuzzleCell::number);
  Words words(puzzle, from_zero);
  for (ListedClue& listed : clues) {
    PuzzleClue& clue = listed.clue;
    if (clue.direction == 0) clue.direction = direction::across;
    if (!listed.cells && !clue.number.empty()) clue.cell = words.OfNumber(clue);
  }
  for (const int direction : {direction::across, direction::down})
    PlaceByOrder(words, clues, direction);
}

/// Sets the blanks of an answer, if the lengths are those of its cells. A comma and a blank divide
/// words; a hyphen, an apostrophe and the like stand in no cell and are no blank.
void SetBlanks(Puzzle& puzzle, const std::vector<GridCell>& cells, const QString& enumeration) {
  static const QRegularExpression part(QStringLiteral("(\\d{1,5})([^\\d]*)"));
  std::vector<std::size_t> blanks;
  std::size_t length = 0;
  for (auto matches = part.globalMatch(enumeration); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    length += match.capturedView(1).toUInt();
    const QString mark = match.captured(2).remove(u')').trimmed();
    if (mark == u"," || (mark.isEmpty() && !match.capturedView(2).isEmpty()))
      blanks.push_back(length);
  }
  if (length != cells.size()) return;
  for (const std::size_t place : blanks) {
    if (place == 0 || place >= cells.size()) continue;
    PuzzleCell& cell = puzzle.At(cells[place - 1]);
    if (cells[place] == Next(cells[place - 1], direction::across)) cell.blank_right = true;
    if (cells[place] == Next(cells[place - 1], direction::down)) cell.blank_below = true;
  }
}

bool HasBlankBehind(const PuzzleCell& cell, int direction) {
  return direction == direction::across ? cell.blank_right : cell.blank_below;
}

}  // namespace

int DirectionOfTitle(const QString& title) {
  static const std::pair<int, QStringList> names[] = {
      {direction::across,
       {QStringLiteral("across"), QStringLiteral("horizont"), QStringLiteral("vodoravn"),
        QStringLiteral("waag"), QStringLiteral("orizzont"), QStringLiteral("хоризонт"),
        QStringLiteral("водоравн")}},
      {direction::down,
       {QStringLiteral("down"), QStringLiteral("vertik"), QStringLiteral("vertic"),
        QStringLiteral("uspravn"), QStringLiteral("senk"), QStringLiteral("вертик"),
        QStringLiteral("усправн")}},
  };
  for (const auto& [direction, beginnings] : names)
    for (const QString& beginning : beginnings)
      if (title.startsWith(beginning, Qt::CaseInsensitive)) return direction;
  return 0;
}

void PlaceClues(Puzzle& puzzle, std::vector<ListedClue> clues) {
  if (clues.size() > most_clues) throw ConversionError(Matter::too_long);
  for (ListedClue& listed : clues)
    if (listed.cells && !listed.cells->empty()) PlaceByCells(puzzle, listed);
  PlaceByNumber(puzzle, clues);
  std::ranges::stable_sort(clues, {}, [](const ListedClue& each) { return each.clue.direction; });
  for (ListedClue& listed : clues) {
    const PuzzleClue& clue = listed.clue;
    if (clue.cell != GridCell{} && !listed.enumeration.isEmpty()) {
      SetBlanks(puzzle, listed.cells ? *listed.cells : WordFrom(puzzle, clue.cell, clue.direction),
                listed.enumeration);
    }
    puzzle.clues.push_back(std::move(listed.clue));
  }
}

void RefuseBars(const Puzzle& puzzle, const std::vector<std::pair<GridCell, GridCell>>& bars) {
  for (const auto& [one, other] : bars)
    if (puzzle.HasLetter(one) && puzzle.HasLetter(other)) throw ConversionError(Matter::bars);
}

std::vector<GridCell> WordFrom(const Puzzle& puzzle, GridCell start, int direction) {
  std::vector<GridCell> cells;
  for (GridCell cell = start; puzzle.HasLetter(cell); cell = Next(cell, direction))
    cells.push_back(cell);
  return cells;
}

std::string EnumerationOf(const Puzzle& puzzle, const PuzzleClue& clue) {
  std::string lengths;
  int length = 0;
  const std::vector<GridCell> cells = WordFrom(puzzle, clue.cell, clue.direction);
  for (const GridCell cell : cells) {
    ++length;
    if (cell == cells.back() || !HasBlankBehind(puzzle.At(cell), clue.direction)) continue;
    lengths += std::to_string(length) + ',';
    length = 0;
  }
  return lengths.empty() ? lengths : lengths + std::to_string(length);
}

void RemarkLosses(const Puzzle& puzzle, Remarks& remarks) {
  std::set<std::pair<GridCell, int>> kept;
  for (const PuzzleClue& clue : puzzle.clues) {
    if (!clue.medium.empty()) remarks.Count(Matter::medium_dropped);
    const std::vector<GridCell> cells = WordFrom(puzzle, clue.cell, clue.direction);
    for (const GridCell cell : cells)
      if (cell != cells.back() && HasBlankBehind(puzzle.At(cell), clue.direction))
        kept.emplace(cell, clue.direction);
  }
  for (int y = 1; y <= puzzle.height; ++y) {
    for (int x = 1; x <= puzzle.width; ++x) {
      for (const int direction : {direction::across, direction::down})
        if (HasBlankBehind(puzzle.At({x, y}), direction) && !kept.contains({{x, y}, direction}))
          remarks.Count(Matter::blanks_dropped);
    }
  }
}

Puzzle Numbered(Puzzle puzzle) {
  if (std::ranges::all_of(puzzle.cells, &std::string::empty, &PuzzleCell::number))
    for (const WordStart& start : WordStarts(puzzle))
      puzzle.At(start.cell).number = std::to_string(start.number);
  return puzzle;
}

}  // namespace kalvon::exchange
