// SPDX-License-Identifier: MIT
#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringTokenizer>
#include <algorithm>

#include "exchange/markup.h"
#include "exchange/xd.h"
#include "exchange/xd_clue_line.h"
#include "exchange/xd_clues.h"
#include "exchange/xd_grid.h"
#include "exchange/xd_markup.h"

namespace kalvon::exchange {
namespace {

/// A text beyond this size is no crossword. Bytes.
constexpr std::size_t largest_text = std::size_t{4} << 20;
constexpr std::size_t most_headers = 1000;
/// How much is looked at to tell the format.
constexpr std::size_t looked_at = std::size_t{1} << 20;

struct TextHeader {
  QStringView name;
  std::string Puzzle::*text = nullptr;
};
constexpr TextHeader text_headers[] = {{u"title", &Puzzle::title},
                                       {u"author", &Puzzle::author},
                                       {u"copyright", &Puzzle::copyright},
                                       {u"description", &Puzzle::description}};
/// Those that say how to read the rest.
constexpr QStringView ruling_headers[] = {u"rebus", u"special",      u"splitcharacter", u"language",
                                          u"form",  u"installments", u"entries"};

struct Header {
  XdLine line;
  QString value;
};
/// By their names in small letters.
using Headers = std::map<QString, Header>;

QString UnicodeOf(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder decoder(QStringDecoder::Utf8);
  QString text = decoder(view);
  if (decoder.hasError()) {
    const qsizetype wrong = text.indexOf(QChar::ReplacementCharacter);
    const auto line = text.left(std::max<qsizetype>(wrong, 0)).count(u'\n') + 1;
    throw ConversionError(Matter::damaged_line, std::to_string(line) + ": UTF-8");
  }
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  const auto is_control = [](QChar c) {
    return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t';
  };
  text.removeIf(is_control);
  return text;
}

Headers HeadersOf(const std::vector<XdLine>& lines, Remarks& remarks) {
  if (lines.size() > most_headers) throw ConversionError(Matter::too_long);
  Headers headers;
  for (const XdLine& line : lines) {
    const qsizetype colon = line.text.indexOf(u':');
    const QString name = line.text.left(std::max<qsizetype>(colon, 0)).trimmed().toString();
    const QString value = line.text.mid(colon + 1).trimmed().toString();
    const QString key = name.toLower();
    const bool is_known =
        std::ranges::find(text_headers, key, &TextHeader::name) != std::end(text_headers) ||
        std::ranges::find(ruling_headers, key) != std::end(ruling_headers);
    if (is_known && headers.emplace(key, Header{line, value}).second) continue;
    const bool says_nothing = value.isEmpty() || value == QStringLiteral("Not set");
    if (!says_nothing)
      remarks.Count(Matter::texts_dropped, (colon < 0 ? value : name).toStdString());
  }
  return headers;
}

QString ValueOf(const Headers& headers, const char* name) {
  const auto header = headers.find(QString::fromLatin1(name));
  return header == headers.end() ? QString() : header->second.value;
}

void ReadTexts(const Headers& headers, const XdSections& sections, Puzzle& puzzle) {
  for (const auto& [name, text] : text_headers)
    if (const auto header = headers.find(name.toString()); header != headers.end())
      puzzle.*text = WithoutXdMarkup(header->second.value).toStdString();
  QString notes = QString::fromStdString(puzzle.description);
  if (const auto section = sections.find(QStringLiteral("notes")); section != sections.end())
    for (const XdLine& line : section->second) notes += u' ' + line.text.toString();
  puzzle.description = Tidy(notes).toStdString();
}

void ReadLanguage(const Headers& headers, Puzzle& puzzle, Remarks& remarks) {
  const QString language = ValueOf(headers, "language").toLower();
  for (const char* known : {"sr", "en"})
    if (language.startsWith(QString::fromLatin1(known))) puzzle.language = known;
  if (puzzle.language.empty() && !language.isEmpty())
    remarks.Count(Matter::texts_dropped, "Language: " + language.toStdString());
}

void ReadInstallments(const Headers& headers, Puzzle& puzzle) {
  static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{0,2}) +(beside|below)$"));
  const auto header = headers.find(QStringLiteral("installments"));
  if (header == headers.end()) return;
  const QRegularExpressionMatch match = form.match(header->second.value.toLower());
  if (!match.hasMatch()) RefuseLine(header->second.line);
  puzzle.installments = match.captured(1).toInt();
  if (puzzle.installments == 1) return;
  puzzle.join =
      match.captured(2) == QStringLiteral("below") ? join::one_under_the_other : join::side_by_side;
}

void ReadEntries(const Headers& headers, const XdSections& sections, const XdRebus& rebus,
                 Puzzle& puzzle, Remarks& remarks) {
  if (const auto start = sections.find(QStringLiteral("start")); start != sections.end()) {
    std::vector<QStringView> rows;
    for (const XdLine& line : start->second) rows.push_back(line.text);
    if (!ReadXdEntries(rows, rebus, puzzle)) remarks.Count(Matter::texts_dropped, "## Start");
  }
  const auto header = headers.find(QStringLiteral("entries"));
  if (header == headers.end()) return;
  std::vector<QStringView> rows;
  const QString entries = header->second.value.simplified();
  for (const QStringView row : QStringTokenizer{entries, u' ', Qt::SkipEmptyParts})
    rows.push_back(row);
  if (!ReadXdEntries(rows, rebus, puzzle)) RefuseLine(header->second.line);
}

void RemarkOtherSections(const XdSections& sections, Remarks& remarks) {
  constexpr QStringView known[] = {u"metadata", u"grid", u"clues", u"notes", u"design", u"start"};
  for (const auto& [name, lines] : sections)
    if (!lines.empty() && std::ranges::find(known, name) == std::end(known))
      remarks.Add({Matter::texts_dropped, {}, "## " + name.left(60).toStdString()});
}

}  // namespace

bool IsXd(std::string_view bytes) {
  bytes = bytes.substr(0, looked_at);
  if (bytes.find('\0') != std::string_view::npos) return false;
  const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
  constexpr auto options =
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption;
  static const QRegularExpression heading(QStringLiteral("^[ \\t]*##[ \\t]+grid[ \\t\\r]*$"),
                                          options);
  static const QRegularExpression header(
      QStringLiteral("^[ \\t]*(title|author|editor|copyright|date|rebus|language)[ \\t]*:"),
      options);
  static const QRegularExpression clue(QStringLiteral("^[ \\t]*[A-Z]?[0-9]+\\."), options);
  return text.contains(heading) || (text.contains(header) && text.contains(clue));
}

Puzzle ReadXd(std::string_view bytes, Remarks& remarks) {
  if (bytes.size() > largest_text) throw ConversionError(Matter::too_long);
  const QString text = UnicodeOf(bytes);
  XdSections sections = SectionsOfXd(text);
  const Headers headers = HeadersOf(sections[QStringLiteral("metadata")], remarks);
  if (ValueOf(headers, "form").toLower() == QStringLiteral("barred"))
    throw ConversionError(Matter::bars);
  const XdRebus rebus = RebusOf(ValueOf(headers, "rebus"));
  Puzzle puzzle =
      ReadXdGrid(sections[QStringLiteral("grid")], rebus, ValueOf(headers, "special"), remarks);
  ReadXdDesign(sections[QStringLiteral("design")], remarks);
  const QString split = ValueOf(headers, "splitcharacter");
  ReadXdClues(sections[QStringLiteral("clues")], split.isEmpty() ? QChar(u'|') : split[0], puzzle,
              remarks);
  ReadTexts(headers, sections, puzzle);
  ReadLanguage(headers, puzzle, remarks);
  ReadInstallments(headers, puzzle);
  ReadEntries(headers, sections, rebus, puzzle, remarks);
  RemarkOtherSections(sections, remarks);
  return puzzle;
}

}  // namespace kalvon::exchange
