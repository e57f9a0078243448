// SPDX-License-Identifier: MIT
#include "exchange/xd_clues.h"

#include <QList>
#include <algorithm>

#include "crossword/direction.h"
#include "exchange/markup.h"
#include "exchange/xd_clue_line.h"
#include "exchange/xd_grid.h"
#include "exchange/xd_markup.h"

namespace kalvon::exchange {
namespace {

/// More lines than any grid has words.
constexpr std::size_t most_lines = 65536;
constexpr QStringView before_answer = u" ~ ";
constexpr QStringView before_split_answer = u" // ";
constexpr qsizetype shown_of_an_answer = 60;

/// A clue and the word that it asks for, as a line has them.
struct Answered {
  QStringView text;
  QStringView answer;        ///< Empty if there is none.
  QStringView split_answer;  ///< The same with signs between its words, mostly empty.
};

bool HasSmallLetter(QStringView text) {
  return std::ranges::any_of(text, [](QChar c) { return c.isLower(); });
}

QStringView FirstWord(QStringView text) {
  const QStringView trimmed = text.trimmed();
  const qsizetype blank = trimmed.indexOf(u' ');
  return blank < 0 ? trimmed : trimmed.left(blank);
}

/// Divides "Text ~ ANSWER ~ ANOTHER // AN|SWER". Newer files end the text at the first sign, older
/// ones may have the sign inside it.
Answered AnsweredOf(QStringView rest) {
  const QList<QStringView> pieces = rest.split(before_answer);
  if (pieces.size() == 1) {
    if (rest.endsWith(u" ~")) rest.chop(2);
    return {rest, {}, {}};
  }
  qsizetype first = pieces.size() - 1;
  while (first > 1 && !HasSmallLetter(pieces[first - 1])) --first;
  Answered answered{
      rest.left(pieces[first].data() - rest.data() - before_answer.size()), pieces[first], {}};
  const QStringView last = pieces.last();
  if (const qsizetype split = last.indexOf(before_split_answer); split >= 0) {
    answered.split_answer = FirstWord(last.mid(split + before_split_answer.size()));
    if (first == pieces.size() - 1) answered.answer = last.left(split);
  }
  answered.answer = answered.answer.trimmed();
  return answered;
}

using Word = std::vector<PuzzleCell*>;

Word WordAt(Puzzle& puzzle, GridCell cell, int direction) {
  Word word;
  for (; puzzle.HasLetter(cell); ++(direction == direction::across ? cell.x : cell.y))
    word.push_back(&puzzle.At(cell));
  return word;
}

/// How much of an answer is what a cell holds, 0 for nothing.
qsizetype Fitting(const PuzzleCell& cell, QStringView answer) {
  if (cell.solution.empty() && !answer.isEmpty()) return answer[0].isSurrogate() ? 2 : 1;
  for (const QString& text : AlternativesOf(QString::fromStdString(cell.solution)))
    if (answer.startsWith(text, Qt::CaseInsensitive)) return text.size();
  return 0;
}

/// Marks the blanks of a word as its answer has them; false, with nothing marked, if that does not
/// fit the letters.
bool MarkBlanks(const Word& word, QStringView answer, QChar split, int direction) {
  const auto is_blank = [&](QChar c) { return c.isSpace() || c == u'-' || c == split; };
  std::vector<PuzzleCell*> before_blank;
  for (std::size_t i = 0; i < word.size(); ++i) {
    bool blank = false;
    const auto skips = [&] {
      return !answer.isEmpty() && is_blank(answer[0]) &&
             (word[i]->solution.empty() || Fitting(*word[i], answer) == 0);
    };
    for (; skips(); answer = answer.mid(1)) blank = true;
    const qsizetype fitting = Fitting(*word[i], answer);
    if (fitting == 0) return false;
    answer = answer.mid(fitting);
    if (blank && i > 0) before_blank.push_back(word[i - 1]);
  }
  if (!answer.isEmpty()) return false;
  for (PuzzleCell* cell : before_blank)
    (direction == direction::across ? cell->blank_right : cell->blank_below) = true;
  return true;
}

class ClueReader {
 public:
  ClueReader(QChar split, Puzzle& puzzle, Remarks& remarks)
      : split_(split), puzzle_(puzzle), remarks_(remarks) {
    for (const WordStart& start : WordStarts(puzzle)) starts_.emplace(start.number, start);
  }

  void Read(const XdLine& line) {
    const auto clue = ClueLineOf(line);
    const bool is_known =
        clue && (clue->group.isNull() || clue->group == u'A' || clue->group == u'D');
    if (!is_known)
      Drop(line);
    else if (clue->key.isEmpty())
      ReadClue(line, *clue);
    else
      ReadKey(line, *clue);
  }

  void End() {
    std::ranges::stable_sort(puzzle_.clues, {}, &PuzzleClue::direction);
    for (const auto& [key, times] : keys_)
      remarks_.Add({Matter::texts_dropped, {}, '^' + key.toStdString(), times});
  }

 private:
  void Drop(const XdLine& line) {
    remarks_.Add(
        {Matter::texts_dropped, {}, line.text.left(shown_of_an_answer).toString().toStdString()});
  }

  void ReadClue(const XdLine& line, const XdClueLine& clue) {
    if (!read_.emplace(Name(clue), puzzle_.clues.size()).second) return Drop(line);
    const auto start = starts_.find(clue.number.toInt());
    const int kind = start == starts_.end() ? 0 : start->second.kind;
    const Answered answered = AnsweredOf(clue.rest);
    PuzzleClue read{.direction = clue.group == u'D' ? direction::down : direction::across,
                    .number = clue.number.toString().toStdString(),
                    .text = WithoutXdMarkup(answered.text).toStdString()};
    if (kind != 0) read.number = std::to_string(start->first);
    if (clue.group.isNull() && kind != 0) {
      // One clue for both words of a cell.
      for (const int word : {direction::across, direction::down}) {
        if (!BelongsTo(kind, word)) continue;
        read.direction = word;
        read.cell = start->second.cell;
        puzzle_.clues.push_back(read);
      }
      return;
    }
    if (BelongsTo(kind, read.direction)) {
      read.cell = start->second.cell;
      CheckAnswer(answered, read);
    }
    puzzle_.clues.push_back(read);
  }

  void CheckAnswer(const Answered& answered, const PuzzleClue& clue) {
    const auto says_nothing = [](QChar c) { return QStringView(u"?-._").contains(c); };
    if (std::ranges::all_of(answered.answer, says_nothing)) return;
    const Word word = WordAt(puzzle_, clue.cell, clue.direction);
    for (const QStringView answer :
         {answered.split_answer, answered.answer, FirstWord(answered.answer)})
      if (MarkBlanks(word, answer, split_, clue.direction)) return;
    remarks_.Add(
        {Matter::answer_differs, clue.cell,
         clue.number + ". " + answered.answer.left(shown_of_an_answer).toString().toStdString()});
  }

  void ReadKey(const XdLine& line, const XdClueLine& clue) {
    const auto owner = read_.find(Name(clue));
    const QString key = clue.key.toString().toLower();
    if (owner == read_.end()) return Drop(line);
    if (key == QStringLiteral("media"))
      puzzle_.clues[owner->second].medium = Tidy(clue.rest.toString()).toStdString();
    else if (key != QStringLiteral("refs"))
      ++keys_[key];
  }

  static QString Name(const XdClueLine& clue) {
    return (clue.group.isNull() ? QString() : QString(clue.group)) + clue.number.toString();
  }

  QChar split_;
  Puzzle& puzzle_;
  Remarks& remarks_;
  std::map<int, WordStart> starts_;      ///< By number.
  std::map<QString, std::size_t> read_;  ///< Place of each clue that has been read, by its name.
  std::map<QString, int> keys_;          ///< How often each that has no place here was met.
};

}  // namespace

void ReadXdClues(const std::vector<XdLine>& lines, QChar split, Puzzle& puzzle, Remarks& remarks) {
  if (lines.size() > most_lines) throw ConversionError(Matter::too_long);
  ClueReader reader(split, puzzle, remarks);
  for (const XdLine& line : lines) reader.Read(line);
  reader.End();
}

}  // namespace kalvon::exchange
