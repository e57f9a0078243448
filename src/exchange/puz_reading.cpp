// SPDX-License-Identifier: MIT
#include <QString>
#include <QStringDecoder>
#include <algorithm>
#include <charconv>

#include "crossword/direction.h"
#include "exchange/markup.h"
#include "exchange/puz.h"
#include "exchange/puz_file.h"

namespace kalvon::exchange {
namespace {

/// The characters 0x80 to 0x9F of the code page that is meant where a file speaks of Latin-1.
constexpr std::u16string_view upper_controls = u"€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8DŽ\x8F\x90‘’“”•–—˜™š›œ\x9DžŸ";

constexpr unsigned char circle = 0x80;

QString Decoded(std::string_view bytes, bool unicode) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder decoder(QStringDecoder::Utf8);
  if (unicode) {
    QString text = decoder(view);
    if (!decoder.hasError()) return text;
  }
  QString text = QString::fromLatin1(view);
  for (QChar& character : text) {
    const char16_t code = character.unicode();
    if (code >= 0x80 && code < 0xA0) character = upper_controls[code - 0x80U];
  }
  return text;
}

/// A text as the crossword holds it.
std::string Tidied(std::string_view bytes, bool unicode) {
  return Tidy(Decoded(bytes, unicode)).toStdString();
}

bool IsBlock(char cell) { return cell == '.' || cell == ':'; }

/// The letter that a byte of a board stands for, empty for one that stands for none.
std::string LetterOf(char cell) {
  return cell == '-' || IsBlock(cell) ? "" : Tidied({&cell, 1}, false);
}

/// A section with a byte for each cell, empty if there is none.
std::string_view Board(const PuzFile& file, const char* name, Remarks& remarks) {
  const auto section = file.sections.find(name);
  if (section == file.sections.end()) return {};
  if (section->second.size() == file.Cells()) return section->second;
  remarks.Count(Matter::texts_dropped, name);
  return {};
}

/// The texts of the table of rebuses by their number: " 0:HEART; 1:CLUB;".
std::map<int, std::string> RebusTable(const PuzFile& file) {
  std::map<int, std::string> table;
  const auto section = file.sections.find("RTBL");
  if (section == file.sections.end()) return table;
  std::string_view rest = section->second;
  for (std::size_t end = 0; (end = rest.find(';')) != std::string_view::npos;
       rest.remove_prefix(end + 1)) {
    std::string_view entry = rest.substr(0, end);
    entry.remove_prefix(std::min(entry.find_first_not_of(' '), entry.size()));
    int key = 0;
    const auto number = std::from_chars(entry.data(), entry.data() + entry.size(), key);
    entry.remove_prefix(static_cast<std::size_t>(number.ptr - entry.data()));
    constexpr std::size_t most_bytes = std::size_t{4} * longest_cell;
    if (entry.size() > most_bytes) throw ConversionError(Matter::too_long);
    if (number.ec == std::errc{} && entry.starts_with(':'))
      table.emplace(key, Tidied(entry.substr(1), file.IsUnicode()));
  }
  return table;
}

void ReadSolution(const PuzFile& file, Puzzle& puzzle, Remarks& remarks) {
  for (std::size_t i = 0; i < file.Cells(); ++i) {
    PuzzleCell& cell = puzzle.cells[i];
    if (IsBlock(file.solution[i]))
      cell.kind = CellKind::block;
    else
      cell.solution = LetterOf(file.solution[i]);
  }
  const std::map<int, std::string> table = RebusTable(file);
  const std::string_view rebuses = Board(file, "GRBS", remarks);
  for (std::size_t i = 0; i < rebuses.size(); ++i) {
    const auto rebus = table.find(static_cast<unsigned char>(rebuses[i]) - 1);
    if (rebus != table.end() && puzzle.cells[i].kind == CellKind::letter)
      puzzle.cells[i].solution = rebus->second;
  }
  // A grid without a solution is filled with one letter by some programs.
  const auto is_known = [](const PuzzleCell& cell) {
    return !cell.solution.empty() && cell.solution != "X";
  };
  if (file.lock == PuzFile::without_solution || std::ranges::none_of(puzzle.cells, is_known))
    for (PuzzleCell& cell : puzzle.cells) cell.solution.clear();
}

/// The user's letters. A section holds those that are several, each with a NUL behind it.
void ReadState(const PuzFile& file, Puzzle& puzzle) {
  for (std::size_t i = 0; i < file.Cells(); ++i)
    if (puzzle.cells[i].kind == CellKind::letter) puzzle.cells[i].entry = LetterOf(file.state[i]);
  const auto section = file.sections.find("RUSR");
  if (section == file.sections.end()) return;
  std::string_view rest = section->second;
  for (PuzzleCell& cell : puzzle.cells) {
    const std::string_view text = rest.substr(0, rest.find('\0'));
    if (!text.empty() && cell.kind == CellKind::letter) cell.entry = Tidied(text, file.IsUnicode());
    rest.remove_prefix(std::min(text.size() + 1, rest.size()));
  }
}

/// The clues stand in the order of the numbers, that across before that down. An empty one keeps
/// the place of a word that has none.
void ReadClues(const PuzFile& file, Puzzle& puzzle, Remarks& remarks) {
  const std::size_t end = file.texts.size() - 1;
  std::size_t next = PuzFile::texts_before_clues;
  for (const WordStart& start : WordStarts(puzzle)) {
    for (const int word : {direction::across, direction::down}) {
      if (!BelongsTo(start.kind, word) || next == end) continue;
      const std::string text = Tidied(file.texts[next++], file.IsUnicode());
      if (text.empty()) continue;
      puzzle.clues.push_back({.direction = word,
                              .cell = start.cell,
                              .number = std::to_string(start.number),
                              .text = text});
    }
  }
  std::ranges::stable_sort(puzzle.clues, {}, &PuzzleClue::direction);
  for (; next < end; ++next)
    if (const std::string text = Tidied(file.texts[next], file.IsUnicode()); !text.empty())
      remarks.Add({Matter::clue_without_word, {}, text});
}

}  // namespace

Puzzle ReadPuz(std::string_view bytes, Remarks& remarks) {
  if (bytes.size() > largest_file) throw ConversionError(Matter::too_long);
  const PuzFile file = ParsePuz(bytes, remarks);
  if (file.lock != PuzFile::unlocked && file.lock != PuzFile::without_solution)
    throw ConversionError(Matter::scrambled);
  if (file.kind == PuzFile::diagramless) throw ConversionError(Matter::other_kind, "diagramless");
  Puzzle puzzle = EmptyPuzzle(file.width, file.height);
  ReadSolution(file, puzzle, remarks);
  ReadState(file, puzzle);
  ReadClues(file, puzzle, remarks);
  const auto is_circled = [](char style) {
    return (static_cast<unsigned char>(style) & circle) != 0;
  };
  if (std::ranges::any_of(Board(file, "GEXT", remarks), is_circled))
    remarks.Count(Matter::circles_dropped);
  puzzle.title = Tidied(file.texts[0], file.IsUnicode());
  puzzle.author = Tidied(file.texts[1], file.IsUnicode());
  puzzle.copyright = Tidied(file.texts[2], file.IsUnicode());
  puzzle.description = Tidied(file.texts.back(), file.IsUnicode());
  return puzzle;
}

}  // namespace kalvon::exchange
