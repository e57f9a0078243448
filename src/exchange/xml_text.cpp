// SPDX-License-Identifier: MIT
#include "exchange/xml_text.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include "exchange/remark.h"

namespace kalvon::exchange {
namespace {

constexpr int most_attributes = 1000;

/// The name of the encoding that a declaration gives, UTF-8 if there is none.
QByteArray DeclaredEncoding(QByteArrayView bytes) {
  static const QRegularExpression declaration(
      QStringLiteral("^\\s*<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._-]+)"));
  const auto match = declaration.match(QString::fromLatin1(bytes.first(qMin(bytes.size(), 200))));
  return match.hasMatch() ? match.captured(1).toLatin1() : QByteArrayLiteral("UTF-8");
}

QString Decode(QByteArrayView bytes) {
  // Without a mark, a "<" of two or four bytes tells the encoding; that of the mark wins otherwise.
  if (const auto encoding = QStringConverter::encodingForData(bytes, u'<'))
    return QStringDecoder(*encoding).decode(bytes);
  QStringDecoder declared(DeclaredEncoding(bytes).constData());
  if (!declared.isValid()) return QString::fromUtf8(bytes);
  QString text = declared.decode(bytes);
  // A declaration that says UTF-8 of another content is a frequent mistake.
  return declared.hasError() ? QString::fromLatin1(bytes) : text;
}

}  // namespace

QString XmlText(std::string_view bytes) {
  QString text = Decode({bytes.data(), static_cast<qsizetype>(bytes.size())});
  for (const char* declaration : {"<!ENTITY", "<!ATTLIST"})
    if (text.contains(QLatin1String(declaration)))
      throw ConversionError(Matter::damaged, declaration);
  int attributes = 0;
  for (const QChar character : text) {
    if (character == u'<')
      attributes = 0;
    else if (character == u'=' && ++attributes > most_attributes)
      throw ConversionError(Matter::too_long);
  }
  // Blanks before the declaration are an error to the parser and to no other program.
  qsizetype start = 0;
  while (start < text.size() && (text[start].isSpace() || text[start] == QChar::ByteOrderMark))
    ++start;
  return start == 0 ? text : text.mid(start);
}

}  // namespace kalvon::exchange
