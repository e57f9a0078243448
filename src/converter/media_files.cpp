// SPDX-License-Identifier: MIT
#include "converter/media_files.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <sstream>

#include "crossword/media_kinds.h"
#include "exchange/clue_text.h"
#include "exchange/crossword_file.h"
#include "exchange/media.h"
#include "exchange/qvm.h"
#include "letters/unicode_text.h"

namespace kalvon::converter {
namespace {

using exchange::ConversionError;
using exchange::HeadedCrossword;
using exchange::Matter;
using exchange::Remarks;

constexpr QSize pane(177, 160);  // Pixels of the pane that shows a picture.

struct MediaFile {
  std::string name;
  std::string bytes;
};

std::string Bitmap(QImage image) {
  if (image.width() > pane.width() || image.height() > pane.height())
    image = image.scaled(pane, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  if (image.hasAlphaChannel()) {
    QImage on_paper(image.size(), QImage::Format_RGB32);
    on_paper.fill(Qt::white);
    QPainter(&on_paper).drawImage(0, 0, image);
    image = on_paper;
  }
  const bool few_colors = image.format() == QImage::Format_Indexed8 ||
                          image.format() == QImage::Format_Grayscale8 ||
                          image.format() == QImage::Format_Mono;
  image = image.convertToFormat(few_colors ? QImage::Format_Indexed8 : QImage::Format_RGB888);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "BMP");
  return buffer.data().toStdString();
}

/// A text in the code of the crossword, with the line ends that the program reads.
std::string CodedLines(const std::string& text, bool english, Remarks& remarks) {
  std::istringstream lines(text);
  std::string coded;
  for (std::string line; std::getline(lines, line);)
    coded += exchange::CodedText(line, english, remarks) + "\r\n";
  return coded;
}

/// A text of a pack as authors write it.
std::string WrittenLines(std::string text, bool english) {
  std::erase(text, '\r');
  return english ? text : UnicodeText(text, true);
}

std::string LoadedBitmap(const std::string& path, const std::string& bytes) {
  const QImage image = QImage::fromData(QByteArray::fromStdString(bytes));
  if (image.isNull()) throw ConversionError(Matter::unknown_medium, path);
  return Bitmap(image);
}

/// The medium that the program takes of a file.
MediaFile Prepared(const std::string& path, bool english, Remarks& remarks) {
  const std::string ending = exchange::EndingOf(path);
  const std::string base =
      exchange::MadeName(QFileInfo(QString::fromStdString(path)).completeBaseName().toStdString());
  const std::string bytes = exchange::BytesOf(path);
  const MediaKind* const kind = FindMediaKind(ending);
  if (kind == nullptr || kind->medium == Medium::picture)
    return {base + ".bmp", LoadedBitmap(path, bytes)};
  const bool text = kind->medium == Medium::text;
  return {base + "." + ending, text ? CodedLines(bytes, english, remarks) : bytes};
}

}  // namespace

void TakeMedia(HeadedCrossword& headed, const std::string& folder, Remarks& remarks) {
  const QDir media(QString::fromStdString(folder));
  for (const exchange::MediaClue& clue : exchange::MediaClues(headed.crossword)) {
    const QString path = media.filePath(QString::fromStdString(clue.medium));
    if (folder.empty() || !QFileInfo::exists(path)) {
      remarks.Add({.matter = Matter::medium_missing, .cell = clue.cell, .detail = clue.medium});
      exchange::GiveMedium(headed.crossword, clue, "");
      continue;
    }
    MediaFile file = Prepared(path.toStdString(), headed.english, remarks);
    exchange::GiveMedium(headed.crossword, clue, file.name);
    headed.media.insert_or_assign(std::move(file.name), std::move(file.bytes));
  }
}

void WriteMedia(const HeadedCrossword& headed, const std::string& folder, bool force) {
  const QDir media(QString::fromStdString(folder));
  for (const auto& [name, bytes] : headed.media) {
    const QString path = media.filePath(QString::fromStdString(name));
    if (!force && QFileInfo::exists(path))
      throw ConversionError(Matter::exists, path.toStdString());
    media.mkpath(QStringLiteral("."));
    const bool text = exchange::EndingOf(name) == "txt";
    exchange::WriteBytes(path.toStdString(), text ? WrittenLines(bytes, headed.english) : bytes);
  }
}

}  // namespace kalvon::converter
