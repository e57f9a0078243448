// SPDX-License-Identifier: MIT
#include "exchange/jpz.h"

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>
#include <algorithm>
#include <map>
#include <set>

#include "crossword/direction.h"
#include "exchange/clue_words.h"
#include "exchange/markup.h"
#include "exchange/xml_text.h"
#include "exchange/zipped.h"

namespace kalvon::exchange {
namespace {

/// More than the largest crossword has, and few enough for the memory. Bytes, and numbers.
constexpr std::size_t largest_xml = std::size_t{12} << 20;
constexpr qsizetype longest_text = 65536;
constexpr std::size_t most_word_cells = 1 << 17;
constexpr std::size_t most_words = 1 << 15;
constexpr qsizetype deepest = 64;

/// The entities of HTML, which the files use without declaring them. The parser reads what it gets
/// for one as XML, so an unknown one loses its "&".
class HtmlEntities : public QXmlStreamEntityResolver {
 public:
  QString resolveUndeclaredEntity(const QString& name) override {
    const char32_t character = CharacterOfEntity(name);
    return character == 0 ? name + u';' : QString::fromUcs4(&character, 1);
  }
};

/// "3", or "1-5", as its first and last number; (0, 0) for anything else.
std::pair<int, int> Range(const QString& text) {
  static const QRegularExpression pattern(
      QStringLiteral("^\\s*(\\d{1,5})\\s*(?:-\\s*(\\d{1,5})\\s*)?$"));
  const auto match = pattern.match(text);
  const int from = match.captured(1).toInt();
  return {from, match.capturedView(2).isEmpty() ? from : match.captured(2).toInt()};
}

class JpzReader {
 public:
  JpzReader(const QString& text, Remarks& remarks) : xml_(text), remarks_(remarks) {
    xml_.setNamespaceProcessing(false);
    xml_.setEntityResolver(&entities_);
  }

  Puzzle Read() {
    do Next();
    while (!xml_.atEnd() && !(xml_.isEndElement() && (open_.isEmpty() || Ended())));
    if (!has_grid_) throw ConversionError(Matter::damaged, "grid");
    if (has_clue_cells_ && clues_.empty()) throw ConversionError(Matter::other_kind, "arrowword");
    RefuseBars(puzzle_, bars_);
    Finish();
    return std::move(puzzle_);
  }

 private:
  [[nodiscard]] bool Ended() const { return ended_ == u"rectangular-puzzle"; }

  /// Reads on to the next tag or text, and does what an element wants done.
  void Next() {
    xml_.readNext();
    if (xml_.hasError()) {
      throw ConversionError(Matter::damaged, "XML, " + std::to_string(xml_.lineNumber()) + ":" +
                                                 std::to_string(xml_.columnNumber()));
    }
    if (xml_.isEndElement()) ended_ = open_.takeLast();
    if (!xml_.isStartElement()) return;
    const QString parent = open_.isEmpty() ? QString() : open_.last();
    open_ << xml_.name().toString();
    if (open_.size() > deepest) throw ConversionError(Matter::damaged, "XML");
    if (!in_text_) Start(parent, open_.last());
  }

  void Start(const QString& parent, const QString& name) {
    struct Row {
      QStringView parent;  ///< Empty for any.
      QStringView name;
      void (JpzReader::*start)() = nullptr;
    };
    static constexpr Row rows[] = {
        {u"", u"rectangular-puzzle", &JpzReader::StartPuzzle},
        {u"metadata", u"title", &JpzReader::StartTitle},
        {u"metadata", u"creator", &JpzReader::StartCreator},
        {u"metadata", u"copyright", &JpzReader::StartCopyright},
        {u"metadata", u"description", &JpzReader::StartDescription},
        {u"", u"grid", &JpzReader::StartGrid},
        {u"grid", u"cell", &JpzReader::StartCell},
        {u"", u"background-picture", &JpzReader::StartPicture},
        {u"", u"word", &JpzReader::StartWord},
        {u"word", u"cells", &JpzReader::AddWordCells},
        {u"clues", u"title", &JpzReader::StartListTitle},
        {u"clues", u"clue", &JpzReader::StartClue},
    };
    parent_ = parent;
    for (const Row& row : rows)
      if (row.name == name && (row.parent.isEmpty() || row.parent == parent))
        return (this->*row.start)();
    if (name == u"clues" && parent != u"applet-settings") titles_ << QString();
  }

  void StartPuzzle() {
    const QString language = Attribute(u"lang");
    for (const char* known : {"sr", "en"})
      if (language.startsWith(QLatin1String(known))) puzzle_.language = known;
  }
  void StartTitle() { puzzle_.title = Content(); }
  void StartCreator() { puzzle_.author = Content(); }
  void StartCopyright() { puzzle_.copyright = Content(); }
  void StartDescription() { puzzle_.description = Content(); }
  void StartListTitle() {
    if (!titles_.isEmpty()) titles_.last() = QString::fromStdString(Content());
  }

  void StartGrid() {
    if (parent_ != u"crossword") throw ConversionError(Matter::other_kind, parent_.toStdString());
    if (has_grid_) throw ConversionError(Matter::damaged, "grid");
    has_grid_ = true;
    Puzzle grid = EmptyPuzzle(Attribute(u"width").toInt(), Attribute(u"height").toInt());
    puzzle_.width = grid.width;
    puzzle_.height = grid.height;
    puzzle_.cells = std::move(grid.cells);
    for (PuzzleCell& cell : puzzle_.cells) cell.kind = CellKind::empty;
  }

  void StartCell() {
    const GridCell place = {Attribute(u"x").toInt(), Attribute(u"y").toInt()};
    if (place.x < 1 || place.x > puzzle_.width || place.y < 1 || place.y > puzzle_.height)
      throw ConversionError(Matter::damaged, "cell");
    PuzzleCell& cell = puzzle_.At(place);
    const QString type = Attribute(u"type");
    has_clue_cells_ = has_clue_cells_ || type == u"clue";
    // Nothing of a cell of the same place before it is left.
    cell = {.kind = type == u"void"                       ? CellKind::empty
                    : type == u"block" || type == u"clue" ? CellKind::block
                                                          : CellKind::letter};
    if (cell.kind != CellKind::letter) return;
    cell.solution = Attribute(u"solution").toStdString();
    cell.entry =
        Attribute(u"hint") == u"true" ? cell.solution : Attribute(u"solve-state").toStdString();
    cell.number = Attribute(u"number").toStdString();
    RemarkLook();
    const std::pair<QStringView, GridCell> sides[] = {{u"top-bar", {place.x, place.y - 1}},
                                                      {u"right-bar", {place.x + 1, place.y}},
                                                      {u"bottom-bar", {place.x, place.y + 1}},
                                                      {u"left-bar", {place.x - 1, place.y}}};
    for (const auto& [side, neighbour] : sides)
      if (Attribute(side) == u"true") bars_.emplace_back(place, neighbour);
    if (bars_.size() > most_word_cells) throw ConversionError(Matter::too_long);
  }

  void RemarkLook() {
    if (!Attribute(u"background-shape").isEmpty()) remarks_.Count(Matter::circles_dropped);
    const QString colour = Attribute(u"background-color").toLower();
    if (!colour.isEmpty() && colour != u"#ffffff" && colour != u"white")
      remarks_.Count(Matter::shades_dropped);
    if (!Attribute(u"background-picture").isEmpty()) StartPicture();
  }
  void StartPicture() { remarks_.Count(Matter::pictures_dropped); }

  void StartWord() {
    word_ = Attribute(u"id");
    words_[word_] = {};
    if (words_.size() > most_words) throw ConversionError(Matter::too_long);
    AddWordCells();
  }

  /// The cells of a range of columns or rows.
  void AddWordCells() {
    const auto [left, right] = Range(Attribute(u"x"));
    const auto [top, bottom] = Range(Attribute(u"y"));
    if (left == 0 || top == 0) return;
    const int steps = std::max(std::abs(right - left), std::abs(bottom - top));
    if (word_cells_ += static_cast<std::size_t>(steps) + 1; word_cells_ > most_word_cells)
      throw ConversionError(Matter::too_long);
    const auto sign = [](int difference) { return difference > 0 ? 1 : difference < 0 ? -1 : 0; };
    for (int i = 0; i <= steps; ++i)
      words_[word_].push_back({left + i * sign(right - left), top + i * sign(bottom - top)});
  }

  void StartClue() {
    ListedClue listed;
    listed.clue.number = Attribute(u"number").toStdString();
    listed.enumeration = Attribute(u"format");
    const QString word = Attribute(u"word");
    clue_words_ << word;
    clue_lists_.push_back(titles_.size() - 1);
    listed.clue.text = Content();
    clues_.push_back(std::move(listed));
    if (clues_.size() > most_words) throw ConversionError(Matter::too_long);
  }

  /// Gives the clues their words, which may stand behind them.
  void Finish() {
    for (std::size_t i = 0; i < clues_.size(); ++i) {
      const qsizetype list = clue_lists_[i];
      int direction = list < 0 ? 0 : DirectionOfTitle(titles_[list]);
      if (direction == 0 && titles_.size() == 2)
        direction = list == 0 ? direction::across : direction::down;
      clues_[i].clue.direction = direction;
      const auto word = words_.find(clue_words_[static_cast<qsizetype>(i)]);
      if (word != words_.end()) clues_[i].cells = word->second;
    }
    PlaceClues(puzzle_, std::move(clues_));
  }

  /// An attribute by its name without a namespace, empty if there is none.
  [[nodiscard]] QString Attribute(QStringView name) const {
    for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
      if (attribute.name() != name) continue;
      if (attribute.value().size() > longest_text) throw ConversionError(Matter::too_long);
      return Tidy(attribute.value().toString());
    }
    return {};
  }

  /// The text up to the end of the element, with that of the elements in it.
  std::string Content() {
    static const QStringList breaks = {QStringLiteral("br"), QStringLiteral("p"),
                                       QStringLiteral("li"), QStringLiteral("div")};
    QString text;
    in_text_ = true;
    for (const qsizetype depth = open_.size(); open_.size() >= depth;) {
      Next();
      if (xml_.isCharacters()) text += xml_.text();
      if (xml_.isStartElement() && breaks.contains(open_.last())) text += u' ';
      if (text.size() > longest_text) throw ConversionError(Matter::too_long);
    }
    in_text_ = false;
    return WithoutMarkup(text).toStdString();
  }

  HtmlEntities entities_;
  QXmlStreamReader xml_;
  Remarks& remarks_;
  QStringList open_;  ///< The names of the elements around, the innermost last.
  QString ended_;
  QString parent_;
  bool in_text_ = false;

  Puzzle puzzle_;
  bool has_grid_ = false;
  bool has_clue_cells_ = false;
  std::vector<std::pair<GridCell, GridCell>> bars_;
  QString word_;  ///< The word that is being read.
  std::map<QString, std::vector<GridCell>> words_;
  std::size_t word_cells_ = 0;
  QStringList titles_;  ///< Of the lists of clues.
  std::vector<ListedClue> clues_;
  QStringList clue_words_;             ///< For each clue, its word.
  std::vector<qsizetype> clue_lists_;  ///< For each clue, its list.
};

bool IsXmlCrossword(std::string_view bytes) {
  std::string head(bytes.substr(0, 4096));
  std::erase(head, '\0');
  const std::size_t first = head.find_first_not_of(" \t\r\n\xEF\xBB\xBF\xFE\xFF");
  return first != std::string::npos && head[first] == '<' &&
         (head.find("crossword-compiler") != std::string::npos ||
          head.find("rectangular-puzzle") != std::string::npos);
}

}  // namespace

bool IsJpz(std::string_view bytes) { return IsZip(bytes) || IsXmlCrossword(bytes); }

Puzzle ReadJpz(std::string_view bytes, Remarks& remarks) {
  const std::string unzipped = IsZip(bytes) ? Unzip(bytes, largest_xml, IsXmlCrossword) : "";
  if (!unzipped.empty()) bytes = unzipped;
  if (bytes.size() > largest_xml) throw ConversionError(Matter::too_long);
  return JpzReader(XmlText(bytes), remarks).Read();
}

}  // namespace kalvon::exchange
