// SPDX-License-Identifier: MIT
#include <QString>
#include <algorithm>

#include "crossword/direction.h"
#include "exchange/markup.h"
#include "exchange/puz.h"
#include "exchange/puz_file.h"
#include "letters/serbian_letters.h"

namespace kalvon::exchange {
namespace {

constexpr int longest_side = 255;
constexpr std::size_t longest_section = 0xFFFF;
constexpr std::size_t most_rebuses = 99;
constexpr char16_t latin1_end = 0x100;

QString Tidied(const std::string& text) { return Tidy(QString::fromStdString(text)); }

bool IsLatin1(const QString& text) {
  return std::ranges::all_of(text, [](QChar c) { return c.unicode() < latin1_end; });
}

/// Whether a text is a byte of a board that means itself.
bool FitsBoard(const QString& text) {
  return text.size() == 1 && IsLatin1(text) && !QStringLiteral(".:-").contains(text);
}

/// A plain capital for what a cell holds: the first letter, in Latin and without its mark.
char PlainLetter(const QString& text) {
  QString plain = text;
  for (const SerbianLetter& letter : SerbianLetters())
    if (text == QString::fromUtf8(letter.cyrillic)) plain = QString::fromUtf8(letter.latin);
  plain = plain.left(1).toUpper();
  const char letter = plain == QStringLiteral("Đ")
                          ? 'D'
                          : plain.normalized(QString::NormalizationForm_D)[0].toLatin1();
  return letter >= 'A' && letter <= 'Z' ? letter : 'X';
}

/// The texts of a file, whose code depends on all of them.
class Texts {
 public:
  explicit Texts(bool unicode) : unicode_(unicode) {}
  [[nodiscard]] std::string operator()(const QString& text) const {
    return unicode_ ? text.toStdString() : text.toLatin1().toStdString();
  }

 private:
  bool unicode_;
};

/// What the cells of one kind, solutions or entries, are in the file.
struct Board {
  std::string bytes = {};             ///< A byte a cell.
  std::vector<QString> rebuses = {};  ///< A text a cell, empty for what the byte says.
};

Board BoardOf(const Puzzle& puzzle, std::string PuzzleCell::*part) {
  Board board{.rebuses = std::vector<QString>(puzzle.cells.size())};
  for (std::size_t i = 0; i < puzzle.cells.size(); ++i) {
    const PuzzleCell& cell = puzzle.cells[i];
    const QString text = Tidied(cell.*part).left(longest_cell);
    if (cell.kind != CellKind::letter) {
      board.bytes += '.';
    } else if (text.isEmpty()) {
      board.bytes += '-';
    } else if (FitsBoard(text)) {
      board.bytes += text[0].toLatin1();
    } else {
      board.bytes += PlainLetter(text);
      board.rebuses[i] = text;
    }
  }
  return board;
}

/// Writes the rebuses of solutions: a table, and for each cell its number in the table from 1.
void AddRebuses(const Board& board, const Texts& texts, PuzFile& file, Remarks& remarks) {
  std::vector<QString> known;
  std::string cells;
  std::string table;
  for (const QString& text : board.rebuses) {
    std::size_t key = 0;
    if (!text.isEmpty()) {
      remarks.Count(Matter::letters_simplified, text.toStdString());
      key = static_cast<std::size_t>(std::ranges::find(known, text) - known.begin()) + 1;
    }
    if (key > most_rebuses) key = 0;
    if (key > known.size()) {
      const QString number = QString::number(known.size()).rightJustified(2);
      // A semicolon can only be what parts them.
      table += number.toStdString() + ':' + texts(QString(text).remove(u';')) + ';';
      known.push_back(text);
    }
    cells += static_cast<char>(key);
  }
  if (known.empty()) return;
  file.sections["GRBS"] = cells;
  file.sections["RTBL"] = table;
}

void AddEntries(const Board& board, const Texts& texts, PuzFile& file, Remarks& remarks) {
  std::string cells;
  bool needed = false;
  for (const QString& text : board.rebuses) {
    cells.append(texts(text)) += '\0';
    needed |= !text.isEmpty();
  }
  if (cells.size() > longest_section)
    remarks.Count(Matter::entries_dropped);
  else if (needed)
    file.sections["RUSR"] = cells;
}

/// The texts of all words in the order of the file, empty for a word without a clue.
std::vector<QString> ClueTexts(const Puzzle& puzzle, Remarks& remarks) {
  std::map<std::pair<GridCell, int>, QString> clues;
  for (const PuzzleClue& clue : puzzle.clues) {
    const QString text = Tidied(clue.text);
    if (!clue.medium.empty()) remarks.Count(Matter::medium_dropped);
    if (!clues.emplace(std::pair{clue.cell, clue.direction}, text).second)
      remarks.Add({Matter::clue_without_word, {}, text.toStdString()});
  }
  std::vector<QString> texts;
  for (const WordStart& start : WordStarts(puzzle)) {
    for (const int word : {direction::across, direction::down}) {
      if (!BelongsTo(start.kind, word)) continue;
      const auto clue = clues.extract({start.cell, word});
      texts.push_back(clue.empty() ? QString() : clue.mapped());
    }
  }
  for (const auto& [word, text] : clues)
    remarks.Add({Matter::clue_without_word, {}, text.toStdString()});
  return texts;
}

void RemarkLosses(const Puzzle& puzzle, Remarks& remarks) {
  const auto is_hole = [](const PuzzleCell& cell) { return cell.kind == CellKind::empty; };
  const auto has_blank = [](const PuzzleCell& cell) {
    return cell.blank_right || cell.blank_below;
  };
  if (std::ranges::any_of(puzzle.cells, is_hole)) remarks.Count(Matter::holes_filled);
  if (std::ranges::any_of(puzzle.cells, has_blank)) remarks.Count(Matter::blanks_dropped);
}

}  // namespace

std::string WritePuz(const Puzzle& puzzle, Remarks& remarks) {
  if (std::max(puzzle.width, puzzle.height) > longest_side)
    throw ConversionError(Matter::too_large_to_write, std::to_string(longest_side));
  RemarkLosses(puzzle, remarks);
  std::vector<QString> all = {Tidied(puzzle.title), Tidied(puzzle.author),
                              Tidied(puzzle.copyright)};
  std::ranges::copy(ClueTexts(puzzle, remarks), std::back_inserter(all));
  all.push_back(Tidied(puzzle.description));
  const Board solution = BoardOf(puzzle, &PuzzleCell::solution);
  const Board state = BoardOf(puzzle, &PuzzleCell::entry);
  const bool latin1 = std::ranges::all_of(all, IsLatin1) &&
                      std::ranges::all_of(solution.rebuses, IsLatin1) &&
                      std::ranges::all_of(state.rebuses, IsLatin1);
  const Texts texts(!latin1);

  PuzFile file{.version = latin1 ? "1.3" : "2.0",
               .width = puzzle.width,
               .height = puzzle.height,
               .solution = solution.bytes,
               .state = state.bytes};
  const auto is_letter = [](char byte) { return byte != '.' && byte != '-'; };
  if (std::ranges::none_of(file.solution, is_letter)) file.lock = PuzFile::without_solution;
  std::ranges::transform(all, std::back_inserter(file.texts), texts);
  AddRebuses(solution, texts, file, remarks);
  AddEntries(state, texts, file, remarks);
  return AssemblePuz(file);
}

}  // namespace kalvon::exchange
