// SPDX-License-Identifier: MIT
#include "converter/options.h"

#include <QCommandLineParser>
#include <iostream>

#include "converter/endings.h"

namespace kalvon::converter {
namespace {

const QCommandLineOption language(QStringLiteral("language"),
                                  QStringLiteral("Language of the crossword: sr or en."),
                                  QStringLiteral("language"));
const QCommandLineOption script(QStringLiteral("script"),
                                QStringLiteral("Script of Serbian output: latin or cyrillic."),
                                QStringLiteral("script"), QStringLiteral("latin"));
const QCommandLineOption lenient(
    QStringLiteral("lenient"),
    QStringLiteral("Take accents off, shorten a rebus, put ? for digits and signs."));
const QCommandLineOption installments(QStringLiteral("installments"),
                                      QStringLiteral("Divide a .qvm into so many files."),
                                      QStringLiteral("number"));
const QCommandLineOption beside(QStringLiteral("beside"),
                                QStringLiteral("Installments stand side by side."));
const QCommandLineOption below(QStringLiteral("below"),
                               QStringLiteral("Installments stand one under the other."));
const QCommandLineOption media(QStringLiteral("media"),
                               QStringLiteral("Folder with the media of the clues."),
                               QStringLiteral("folder"));
const QCommandLineOption force(QStringLiteral("force"), QStringLiteral("Replace existing files."));
const QCommandLineOption check(
    QStringLiteral("check"), QStringLiteral("Say of crosswords and packs whether they are whole."));
const QCommandLineOption to(QStringLiteral("to"), QStringLiteral("Format to write."),
                            QStringLiteral("format"));
const QCommandLineOption into(QStringLiteral("into"), QStringLiteral("Folder to write into."),
                              QStringLiteral("folder"));
const QCommandLineOption size(QStringLiteral("size"),
                              QStringLiteral("Width of a png in pixels, 16 to 8192."),
                              QStringLiteral("pixels"));

std::optional<exchange::Language> LanguageOf(const QString& name) {
  if (name.isEmpty()) return exchange::Language::found;
  if (name == u"sr") return exchange::Language::serbian;
  if (name == u"en") return exchange::Language::english;
  return std::nullopt;
}

/// What is wrong with the command line, empty for nothing.
QString Wrong(const QCommandLineParser& parser, const Options& options) {
  const QString chosen_script = parser.value(script);
  const bool divided = parser.isSet(installments);
  if (!LanguageOf(parser.value(language))) return QStringLiteral("--language is sr or en");
  if (chosen_script != u"latin" && chosen_script != u"cyrillic")
    return QStringLiteral("--script is latin or cyrillic");
  if (divided && parser.isSet(beside) == parser.isSet(below))
    return QStringLiteral("--installments needs --beside or --below");
  if (divided && (options.division->installments < 1 || options.division->installments > 999))
    return QStringLiteral("--installments is a number from 1 to 999");
  if (options.size < 16 || options.size > 8192) return QStringLiteral("--size is 16 to 8192");
  if (options.check) return options.files.empty() ? QStringLiteral("no file is named") : QString();
  if (!options.to.empty() && !IsTargetEnding(options.to))
    return QStringLiteral("--to is one of ") + QString::fromStdString(TargetEndings());
  if (options.into.empty())
    return options.files.size() == 2 ? QString() : QStringLiteral("name one source and one target");
  if (options.to.empty()) return QStringLiteral("--into needs --to");
  return options.files.empty() ? QStringLiteral("no file is named") : QString();
}

}  // namespace

std::optional<Options> OptionsOf(const std::vector<std::string>& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Converts crosswords between formats. The format "
                                                  "of a source is found by its content, that "
                                                  "of a target by its ending: ") +
                                   QString::fromStdString(TargetEndings()) + u'.');
  parser.addOptions({language, script, lenient, installments, beside, below, media, force, check,
                     to, into, size});
  parser.addPositionalArgument(QStringLiteral("source"),
                               QStringLiteral("Crossword, - for the standard input."));
  parser.addPositionalArgument(QStringLiteral("target"),
                               QStringLiteral("File to write, - for the standard output."));
  parser.addHelpOption();
  parser.addVersionOption();
  QStringList words;
  for (const std::string& argument : arguments) words << QString::fromStdString(argument);
  parser.process(words);

  Options options;
  options.storing = {LanguageOf(parser.value(language)).value_or(exchange::Language::found),
                     parser.isSet(lenient)};
  options.latin = parser.value(script) == u"latin";
  if (parser.isSet(installments))
    options.division = {parser.value(installments).toInt(),
                        parser.isSet(beside) ? join::side_by_side : join::one_under_the_other};
  options.media = parser.value(media).toStdString();
  options.force = parser.isSet(force);
  options.check = parser.isSet(check);
  if (parser.isSet(size)) options.size = parser.value(size).toInt();
  options.to = parser.value(to).toLower().toStdString();
  options.into = parser.value(into).toStdString();
  for (const QString& file : parser.positionalArguments())
    options.files.push_back(file.toStdString());
  const QString wrong = Wrong(parser, options);
  if (wrong.isEmpty()) return options;
  std::cerr << wrong.toStdString() << "; --help tells more\n";
  return std::nullopt;
}

}  // namespace kalvon::converter
