// SPDX-License-Identifier: MIT
#include "exchange/xd_markup.h"

#include <algorithm>
#include <vector>

#include "exchange/markup.h"

namespace kalvon::exchange {
namespace {

constexpr QStringView styles = u"/*_-~^=";
constexpr QStringView with_parts = u"@!#";
/// Marks that stand deeper are text.
constexpr std::size_t deepest = 16;

/// A mark that has been opened.
struct Span {
  QChar type;
  qsizetype start = 0;    ///< Of its opening in the result.
  qsizetype parted = -1;  ///< Place of its first bar in the result, -1 for none.
};

/// The text of what is divided by bars. Older files give the address of a picture before its text.
QString TextOfParts(const Span& span, const QString& content, qsizetype bar) {
  if (span.type != u'!') return content.left(bar < 0 ? content.size() : bar).trimmed();
  const bool bracketed = content.startsWith(u"![") || content.startsWith(u'[');
  const QStringView first = QStringView(content).left(bar < 0 ? content.size() : bar);
  if (!bracketed && !first.contains(u"://")) return first.trimmed().toString();
  const QString rest = bar < 0 ? QString() : content.mid(bar + 1);
  return rest.left(rest.indexOf(u'|')).remove(u']');
}

/// Turns the span at the end of the result into its text.
void Close(const Span& span, QString& result) {
  const QString content = result.mid(span.start + 2);
  const qsizetype bar = span.parted < 0 ? -1 : span.parted - span.start - 2;
  result.truncate(span.start);
  result += with_parts.contains(span.type) ? TextOfParts(span, content, bar) : content;
}

class Reader {
 public:
  explicit Reader(QStringView text) : text_(text) {}

  QString Read() {
    while (place_ < text_.size())
      if (!TakeLiteral() && !TakeOpening() && !TakeClosing() && !TakeEscape()) TakeCharacter();
    return result_;
  }

 private:
  [[nodiscard]] QChar At(qsizetype place) const {
    return place < text_.size() ? text_[place] : QChar();
  }

  /// "{\...\}"; an empty one ends a line.
  bool TakeLiteral() {
    if (At(place_) != u'{' || At(place_ + 1) != u'\\' || no_more_literals_) return false;
    const qsizetype end = text_.indexOf(u"\\}", place_ + 2);
    no_more_literals_ = end < 0;
    if (end < 0) return false;
    const QStringView content = text_.mid(place_ + 2, end - place_ - 2);
    if (content.isEmpty()) result_ += u' ';
    result_ += content;
    place_ = end + 2;
    return true;
  }

  bool TakeOpening() {
    const QChar type = At(place_ + 1);
    if (At(place_) != u'{' || spans_.size() == deepest) return false;
    if (!styles.contains(type) && !with_parts.contains(type)) return false;
    spans_.push_back({type, result_.size()});
    result_ += text_.mid(place_, 2);
    place_ += 2;
    return true;
  }

  bool TakeClosing() {
    if (At(place_ + 1) != u'}') return false;
    const auto open = std::find_if(spans_.rbegin(), spans_.rend(),
                                   [&](const Span& span) { return span.type == text_[place_]; });
    if (open == spans_.rend()) return false;
    Close(*open, result_);
    spans_.erase(std::prev(open.base()), spans_.end());
    place_ += 2;
    return true;
  }

  /// A backslash before a brace or another one is left out; in older files one alone ends a line.
  bool TakeEscape() {
    if (At(place_) != u'\\') return false;
    const QChar next = At(place_ + 1);
    const bool escapes = !next.isNull() && QStringView(u"{}\\").contains(next);
    result_ += escapes ? next : QChar(u' ');
    place_ += escapes ? 2 : 1;
    return true;
  }

  void TakeCharacter() {
    if (text_[place_] == u'|' && !spans_.empty() && spans_.back().parted < 0)
      spans_.back().parted = result_.size();
    result_ += text_[place_++];
  }

  QStringView text_;
  qsizetype place_ = 0;
  QString result_;
  std::vector<Span> spans_;  ///< Those that are open, the innermost last.
  bool no_more_literals_ = false;
};

}  // namespace

QString WithoutXdMarkup(QStringView text) { return Tidy(Reader(text).Read()); }

QString WithXdLiterals(const QString& text) {
  const QString tidy = Tidy(text);
  QString result;
  for (qsizetype i = 0; i < tidy.size(); ++i) {
    const char16_t next = i + 1 < tidy.size() ? tidy[i + 1].unicode() : u' ';
    const bool opens = tidy[i] == u'{' && next < 0x80 && QChar(next).isPrint() &&
                       !QChar(next).isLetterOrNumber() && next != u' ';
    if (opens || tidy[i] == u'\\' || tidy[i] == u'~')
      result += QStringLiteral("{\\") + tidy[i] + QStringLiteral("\\}");
    else
      result += tidy[i];
  }
  return result;
}

}  // namespace kalvon::exchange
