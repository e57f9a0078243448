// SPDX-License-Identifier: MIT
#include <QStringList>
#include <algorithm>
#include <map>
#include <set>

#include "crossword/direction.h"
#include "exchange/markup.h"
#include "exchange/xd.h"
#include "exchange/xd_grid.h"
#include "exchange/xd_markup.h"

namespace kalvon::exchange {
namespace {

/// The text of a cell as the grid and the header can have it.
QString CellText(const std::string& text) {
  return Tidy(QString::fromStdString(text))
      .remove(u' ')
      .normalized(QString::NormalizationForm_C)
      .left(longest_cell);
}

/// Whether a text is one character that means itself.
bool IsPlain(const QString& text) {
  const QList<uint> characters = text.toUcs4();
  return characters.size() == 1 && QChar::isLetter(characters[0]) && !QChar::isLower(characters[0]);
}

/// Characters of the grid that stand for what no single letter is.
class Keys {
 public:
  /// The character for a text that is not empty.
  QString For(const QString& text) {
    if (IsPlain(text)) return text;
    QString& key = keys_[text];
    if (key.isEmpty()) {
      const char32_t character = Next(keys_.size() - 1);
      key = QString::fromUcs4(&character, 1);
      header_ += (header_.isEmpty() ? QString() : QStringLiteral(" ")) + key + u'=' + text;
    }
    return key;
  }
  [[nodiscard]] const QString& Header() const { return header_; }

 private:
  /// Digits, then signs, and for the rest private characters, of which there are enough.
  static char32_t Next(std::size_t n) {
    constexpr std::u32string_view first = U"1234567890@$%&+!<>①②③④⑤⑥⑦⑧⑨⑩⑪⑫⑬⑭⑮⑯⑰⑱⑲⑳";
    constexpr char32_t private_characters = 0xF0000;
    return n < first.size() ? first[n] : private_characters + static_cast<char32_t>(n);
  }

  std::map<QString, QString> keys_;
  QString header_;
};

/// The rows of a grid, of what a function says of each cell.
template <typename Function>
QStringList RowsOf(const Puzzle& puzzle, Function cell_text) {
  QStringList rows;
  for (int y = 1; y <= puzzle.height; ++y) {
    QString row;
    for (int x = 1; x <= puzzle.width; ++x) row += cell_text(puzzle.At({x, y}));
    rows += row;
  }
  return rows;
}

QString GridText(const PuzzleCell& cell, Keys& keys) {
  if (cell.kind == CellKind::block) return QStringLiteral("#");
  if (cell.kind == CellKind::empty) return QStringLiteral("_");
  const QString solution = CellText(cell.solution);
  return solution.isEmpty() ? QStringLiteral("?") : keys.For(solution);
}

QString EntryText(const PuzzleCell& cell, Keys& keys) {
  const QString entry = cell.kind == CellKind::letter ? CellText(cell.entry) : QString();
  return entry.isEmpty() ? QStringLiteral(".") : keys.For(entry);
}

class ClueWriter {
 public:
  ClueWriter(const Puzzle& puzzle, Remarks& remarks) : puzzle_(puzzle), remarks_(remarks) {
    for (const WordStart& start : WordStarts(puzzle)) {
      for (const int word : {direction::across, direction::down}) {
        if (!BelongsTo(start.kind, word)) continue;
        numbers_.emplace(std::pair{start.cell, word}, start.number);
        taken_.insert(Name(QString::number(start.number), word));
      }
    }
  }

  QString Write() {
    QString lines;
    int direction = direction::across;
    for (const PuzzleClue& clue : puzzle_.clues) {
      if (clue.direction != direction) lines += u'\n';
      direction = clue.direction;
      lines += LinesOf(clue);
    }
    int blanks = 0;
    for (const PuzzleCell& cell : puzzle_.cells)
      blanks += (cell.blank_right ? 1 : 0) + (cell.blank_below ? 1 : 0);
    if (blanks > blanks_written_) remarks_.Count(Matter::blanks_dropped);
    return lines;
  }

 private:
  static QString Name(const QString& number, int direction) {
    return (direction == direction::down ? u'D' : u'A') + number;
  }

  QString LinesOf(const PuzzleClue& clue) {
    const QString text = WithXdLiterals(QString::fromStdString(clue.text));
    const auto word = numbers_.extract({clue.cell, clue.direction});
    QString name;
    QString answer;
    if (!word.empty()) {
      name = Name(QString::number(word.mapped()), clue.direction);
      answer = AnswerOf(clue);
    } else {
      // One without a word keeps its number, if that says so.
      const QString number = QString::fromStdString(clue.number);
      const auto is_digit = [](QChar c) { return c >= u'0' && c <= u'9'; };
      name = Name(number, clue.direction);
      if (number.isEmpty() || !std::ranges::all_of(number, is_digit) ||
          !taken_.insert(name).second) {
        remarks_.Add(
            {Matter::clue_without_word, {}, Tidy(QString::fromStdString(clue.text)).toStdString()});
        return {};
      }
    }
    QString lines = name + u'.';
    if (!text.isEmpty()) lines += u' ' + text;
    if (!answer.isEmpty()) lines += QStringLiteral(" ~ ") + answer;
    lines += u'\n';
    const QString medium = Tidy(QString::fromStdString(clue.medium));
    if (!medium.isEmpty()) lines += name + QStringLiteral(" ^Media: ") + medium + u'\n';
    return lines;
  }

  /// The answer with its blanks; empty if nothing of it is known, or if it would not be read as it
  /// is.
  QString AnswerOf(const PuzzleClue& clue) {
    const bool across = clue.direction == direction::across;
    QString answer;
    int blanks = 0;
    bool known = false;
    for (GridCell at = clue.cell; puzzle_.HasLetter(at);) {
      const PuzzleCell& cell = puzzle_.At(at);
      const QString solution = CellText(cell.solution);
      known |= !solution.isEmpty();
      answer += solution.isEmpty() ? QStringLiteral("?") : AlternativesOf(solution)[0];
      ++(across ? at.x : at.y);
      if ((across ? cell.blank_right : cell.blank_below) && puzzle_.HasLetter(at)) {
        answer += u' ';
        ++blanks;
      }
    }
    if (!known || answer.contains(u'~') || answer.contains(u"//")) return {};
    blanks_written_ += blanks;
    return answer;
  }

  const Puzzle& puzzle_;
  Remarks& remarks_;
  std::map<std::pair<GridCell, int>, int> numbers_;  ///< Of the words that have no clue yet.
  std::set<QString> taken_;                          ///< The names of words and clues.
  int blanks_written_ = 0;
};

QString InstallmentsOf(const Puzzle& puzzle) {
  if (puzzle.installments < 2) return {};
  return QString::number(puzzle.installments) + (puzzle.join == join::one_under_the_other
                                                     ? QStringLiteral(" below")
                                                     : QStringLiteral(" beside"));
}

}  // namespace

std::string WriteXd(const Puzzle& puzzle, Remarks& remarks) {
  Keys keys;
  const QStringList grid =
      RowsOf(puzzle, [&](const PuzzleCell& cell) { return GridText(cell, keys); });
  const QStringList entries =
      RowsOf(puzzle, [&](const PuzzleCell& cell) { return EntryText(cell, keys); });
  const auto is_entered = [](const PuzzleCell& cell) { return !cell.entry.empty(); };
  const bool has_entries = std::ranges::any_of(puzzle.cells, is_entered);

  const auto text = [](const std::string& value) {
    return WithXdLiterals(QString::fromStdString(value));
  };
  const std::pair<const char*, QString> headers[] = {
      {"Title", text(puzzle.title)},
      {"Author", text(puzzle.author)},
      {"Copyright", text(puzzle.copyright)},
      {"Description", text(puzzle.description)},
      {"Language", text(puzzle.language)},
      {"Installments", InstallmentsOf(puzzle)},
      {"Rebus", keys.Header()},
      {"Entries", has_entries ? entries.join(u' ') : QString()}};
  QString file = QStringLiteral("## Metadata\n\n");
  for (const auto& [name, value] : headers)
    if (!value.isEmpty()) file += QString::fromLatin1(name) + QStringLiteral(": ") + value + u'\n';
  file += QStringLiteral("\n## Grid\n\n") + grid.join(u'\n') + QStringLiteral("\n\n## Clues\n\n") +
          ClueWriter(puzzle, remarks).Write();
  return file.toStdString();
}

}  // namespace kalvon::exchange
