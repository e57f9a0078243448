// SPDX-License-Identifier: MIT
#include <QXmlStreamWriter>
#include <map>

#include "crossword/direction.h"
#include "exchange/clue_words.h"
#include "exchange/jpz.h"
#include "exchange/markup.h"

namespace kalvon::exchange {
namespace {

class JpzWriter {
 public:
  explicit JpzWriter(const Puzzle& puzzle) : puzzle_(Numbered(puzzle)) {}

  std::string Write() {
    xml_.writeStartDocument();
    xml_.writeStartElement(QStringLiteral("crossword-compiler-applet"));
    Attribute("xmlns", QStringLiteral("http://crossword.info/xml/crossword-compiler-applet"));
    xml_.writeStartElement(QStringLiteral("rectangular-puzzle"));
    Attribute("xmlns", QStringLiteral("http://crossword.info/xml/rectangular-puzzle"));
    if (!puzzle_.language.empty()) Attribute("xml:lang", puzzle_.language);
    WriteMetadata();
    xml_.writeStartElement(QStringLiteral("crossword"));
    WriteGrid();
    WriteWords();
    WriteClues(direction::across, QStringLiteral("Across"));
    WriteClues(direction::down, QStringLiteral("Down"));
    xml_.writeEndDocument();
    return bytes_.toStdString();
  }

 private:
  void Attribute(const char* name, const QString& value) {
    xml_.writeAttribute(QLatin1String(name), value);
  }
  void Attribute(const char* name, int value) { Attribute(name, QString::number(value)); }
  void Attribute(const char* name, const std::string& value) {
    Attribute(name, Tidy(QString::fromStdString(value)));
  }

  void WriteMetadata() {
    xml_.writeStartElement(QStringLiteral("metadata"));
    const std::pair<const char*, const std::string*> texts[] = {
        {"title", &puzzle_.title},
        {"creator", &puzzle_.author},
        {"copyright", &puzzle_.copyright},
        {"description", &puzzle_.description}};
    for (const auto& [name, text] : texts)
      xml_.writeTextElement(QLatin1String(name), Tidy(AsMarkup(*text)));
    xml_.writeEndElement();
  }

  void WriteGrid() {
    xml_.writeStartElement(QStringLiteral("grid"));
    Attribute("width", puzzle_.width);
    Attribute("height", puzzle_.height);
    for (int y = 1; y <= puzzle_.height; ++y)
      for (int x = 1; x <= puzzle_.width; ++x) WriteCell({x, y});
    xml_.writeEndElement();
  }

  void WriteCell(GridCell place) {
    const PuzzleCell& cell = puzzle_.At(place);
    xml_.writeStartElement(QStringLiteral("cell"));
    Attribute("x", place.x);
    Attribute("y", place.y);
    if (cell.kind == CellKind::block) Attribute("type", QStringLiteral("block"));
    if (cell.kind == CellKind::empty) Attribute("type", QStringLiteral("void"));
    if (cell.kind == CellKind::letter) {
      const std::pair<const char*, const std::string*> texts[] = {
          {"solution", &cell.solution}, {"number", &cell.number}, {"solve-state", &cell.entry}};
      for (const auto& [name, text] : texts)
        if (!text->empty()) Attribute(name, *text);
    }
    xml_.writeEndElement();
  }

  /// All words, also those without a clue; and one without cells for clues without a word.
  void WriteWords() {
    for (const int direction : {direction::across, direction::down}) {
      for (const WordStart& start : WordStarts(puzzle_)) {
        if (!BelongsTo(start.kind, direction)) continue;
        StartWord(direction, start.cell);
        const GridCell end = WordFrom(puzzle_, start.cell, direction).back();
        Attribute("x", Range(start.cell.x, end.x));
        Attribute("y", Range(start.cell.y, end.y));
        xml_.writeEndElement();
      }
    }
    for (const PuzzleClue& clue : puzzle_.clues) {
      if (words_.contains({clue.direction, clue.cell})) continue;
      StartWord(clue.direction, clue.cell);
      xml_.writeEndElement();
    }
  }

  void StartWord(int direction, GridCell cell) {
    const int number = static_cast<int>(words_.size()) + 1;
    words_[{direction, cell}] = number;
    xml_.writeStartElement(QStringLiteral("word"));
    Attribute("id", number);
  }

  static QString Range(int from, int to) {
    return from == to ? QString::number(from) : QStringLiteral("%1-%2").arg(from).arg(to);
  }

  void WriteClues(int direction, const QString& title) {
    xml_.writeStartElement(QStringLiteral("clues"));
    Attribute("ordering", QStringLiteral("normal"));
    xml_.writeStartElement(QStringLiteral("title"));
    xml_.writeTextElement(QStringLiteral("b"), title);
    xml_.writeEndElement();
    for (const PuzzleClue& clue : puzzle_.clues) {
      if (clue.direction != direction) continue;
      xml_.writeStartElement(QStringLiteral("clue"));
      Attribute("word", words_[{direction, clue.cell}]);
      Attribute("number", clue.number);
      if (const std::string lengths = EnumerationOf(puzzle_, clue); !lengths.empty())
        Attribute("format", lengths);
      xml_.writeCharacters(Tidy(AsMarkup(clue.text)));
      xml_.writeEndElement();
    }
    xml_.writeEndElement();
  }

  Puzzle puzzle_;
  QByteArray bytes_;
  QXmlStreamWriter xml_{&bytes_};
  std::map<std::pair<int, GridCell>, int> words_;  ///< Their identities.
};

}  // namespace

std::string WriteJpz(const Puzzle& puzzle, Remarks& remarks) {
  RemarkLosses(puzzle, remarks);
  return JpzWriter(puzzle).Write();
}

}  // namespace kalvon::exchange
