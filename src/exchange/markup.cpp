// SPDX-License-Identifier: MIT
#include "exchange/markup.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <iterator>

namespace kalvon::exchange {
namespace {

struct Entity {
  QStringView name;
  char32_t character = 0;
};
constexpr Entity entities[] = {
    {u"amp", U'&'},    {u"lt", U'<'},     {u"gt", U'>'},     {u"quot", U'"'},   {u"apos", U'\''},
    {u"ndash", U'–'},  {u"mdash", U'—'},  {u"lsquo", U'‘'},  {u"rsquo", U'’'},  {u"sbquo", U'‚'},
    {u"ldquo", U'“'},  {u"rdquo", U'”'},  {u"bdquo", U'„'},  {u"hellip", U'…'}, {u"bull", U'•'},
    {u"trade", U'™'},  {u"euro", U'€'},   {u"prime", U'′'},  {u"Prime", U'″'},  {u"minus", U'−'},
    {u"Scaron", U'Š'}, {u"scaron", U'š'}, {u"OElig", U'Œ'},  {u"oelig", U'œ'},  {u"Yuml", U'Ÿ'},
    {u"larr", U'←'},   {u"uarr", U'↑'},   {u"rarr", U'→'},   {u"darr", U'↓'},   {u"infin", U'∞'},
    {u"pi", U'π'},     {u"alpha", U'α'},  {u"beta", U'β'},   {u"omega", U'ω'},  {u"ensp", U' '},
    {u"emsp", U' '},   {u"thinsp", U' '}, {u"ne", U'≠'},     {u"le", U'≤'},     {u"ge", U'≥'},
    {u"hearts", U'♥'}, {u"diams", U'♦'},  {u"clubs", U'♣'},  {u"spades", U'♠'}, {u"radic", U'√'},
    {u"Zcaron", U'Ž'}, {u"zcaron", U'ž'}, {u"Ccaron", U'Č'}, {u"ccaron", U'č'}, {u"Cacute", U'Ć'},
    {u"cacute", U'ć'}, {u"Dstrok", U'Đ'}, {u"dstrok", U'đ'},
};

/// The names of the characters 0xA0 to 0xFF in HTML.
const QStringList& LatinEntities() {
  static const QStringList names =
      QStringLiteral(
          "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg "
          "plusmn sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 "
          "iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml "
          "Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave "
          "Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil "
          "egrave eacute ecirc euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde "
          "ouml divide oslash ugrave uacute ucirc uuml yacute thorn yuml")
          .split(u' ');
  return names;
}

QString WithEntitiesResolved(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("&(#?[0-9A-Za-z]{1,8});"));
  QString resolved;
  qsizetype done = 0;
  for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const char32_t character = CharacterOfEntity(match.capturedView(1));
    if (character == 0) continue;
    resolved += QStringView(text).mid(done, match.capturedStart() - done);
    resolved += QString::fromUcs4(&character, 1);
    done = match.capturedEnd();
  }
  return resolved.append(QStringView(text).mid(done));
}

}  // namespace

char32_t CharacterOfEntity(QStringView name) {
  if (name.startsWith(u'#')) {
    const bool hexadecimal = name.mid(1, 1).compare(u"x", Qt::CaseInsensitive) == 0;
    const char32_t code = name.mid(hexadecimal ? 2 : 1).toUInt(nullptr, hexadecimal ? 16 : 10);
    return code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code) ? code : 0;
  }
  const auto* const entity = std::ranges::find(entities, name, &Entity::name);
  if (entity != std::end(entities)) return entity->character;
  const qsizetype latin = LatinEntities().indexOf(name);
  return latin < 0 ? 0 : static_cast<char32_t>(0xA0 + latin);
}

QString WithoutMarkup(const QString& html) {
  static const QRegularExpression breaks(QStringLiteral("<(br|p|li|div)\\b[^<>]*>"),
                                         QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression tags(QStringLiteral("<!--.*?-->|</?[A-Za-z][^<>]*>"));
  QString text = html;
  text.replace(breaks, QStringLiteral(" ")).remove(tags);
  return Tidy(WithEntitiesResolved(text));
}

QString Tidy(const QString& text) {
  QString tidy;
  bool blank = false;
  for (const QChar character : text) {
    if (character.isSpace()) {
      blank = !tidy.isEmpty();
    } else if (character.category() != QChar::Other_Control &&
               !QChar::isNonCharacter(character.unicode())) {
      if (blank) tidy += u' ';
      blank = false;
      tidy += character;
    }
  }
  return tidy;
}

QString AsMarkup(const std::string& text) {
  const QString plain = QString::fromStdString(text);
  return WithoutMarkup(plain) == Tidy(plain) ? plain : plain.toHtmlEscaped();
}

}  // namespace kalvon::exchange
