// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/picture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QtEndian>
#include <cstddef>
#include <cstdlib>
#include <span>
#include <utility>

#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace toolkit {

namespace {

/// Pixels to a side. A few packed bytes can stand for a picture that fills the memory.
constexpr qint64 largest_side = 4096;

/// What the head of a bitmap file says.
struct BitmapHead {
  qint64 width;
  qint64 height;
  int bits;
  qint64 bytes;     ///< That the pixels take up.
  qint64 bytes_at;  ///< Where they begin.
};

/// A number in the head of a bitmap file, which holds enough bytes for it.
template <typename Integer>
qint64 NumberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Integer>(bytes.sliced(at).constData());
}

BitmapHead HeadOf(const QByteArray& bytes) {
  BitmapHead head{NumberAt<qint32>(bytes, 18), std::abs(NumberAt<qint32>(bytes, 22)),
                  static_cast<int>(NumberAt<quint16>(bytes, 28)), 0, NumberAt<quint32>(bytes, 10)};
  constexpr int oldest = 12;  // The head of OS/2 has small numbers, and pixels that are not packed.
  const bool is_oldest = NumberAt<quint32>(bytes, 14) == oldest;
  if (is_oldest) {
    head.width = NumberAt<quint16>(bytes, 18);
    head.height = NumberAt<quint16>(bytes, 20);
    head.bits = static_cast<int>(NumberAt<quint16>(bytes, 24));
  }
  const qint64 packing = is_oldest ? 0 : NumberAt<quint32>(bytes, 30);
  const bool run_lengths = packing == 1 || packing == 2;
  head.bytes = run_lengths ? NumberAt<quint32>(bytes, 34)
                           : (head.width * head.bits + 31) / 32 * 4 * head.height;
  return head;
}

/// Whether the file holds all the pixels of which its head speaks.
bool IsWhole(const BitmapHead& head, qint64 file_size) {
  return head.width > 0 && head.width <= largest_side && head.height > 0 &&
         head.height <= largest_side && file_size >= head.bytes_at + head.bytes;
}

/// The five or six bits of a shade leave the lowest ones empty, so that white is a little gray.
void SpreadShades(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    void* row = image.scanLine(y);
    const std::span pixels(static_cast<QRgb*>(row), static_cast<std::size_t>(image.width()));
    for (QRgb& pixel : pixels) pixel |= (pixel >> 5U) & 0x070707U;
  }
}

QImage ReadBitmap(const QString& host_path) {
  constexpr qsizetype head_size = 38;
  QFile file(host_path);
  if (!file.open(QFile::ReadOnly)) return {};
  const QByteArray bytes = file.peek(head_size);
  if (bytes.size() < head_size || !bytes.startsWith("BM")) return {};
  const BitmapHead head = HeadOf(bytes);
  if (!IsWhole(head, file.size())) return {};
  QImage image = QImageReader(&file, "bmp").read().convertToFormat(QImage::Format_RGB32);
  if (head.bits == 16) SpreadShades(image);
  return image;
}

Picture ReadPicture(const QString& host_path) {
  auto image = std::make_shared<const QImage>(ReadBitmap(host_path));
  if (image->isNull()) throw files::RuntimeError(files::error::invalid_picture);
  return Picture(std::move(image));
}

}  // namespace

Picture LoadPicture(const std::string& path) {
  if (path.empty()) return {};
  const QString host_path = QFile::decodeName(files::HostPath(path).c_str());
  if (!QFileInfo(host_path).isFile()) throw files::RuntimeError(files::error::file_not_found);
  return ReadPicture(host_path);
}

Picture BuiltInPicture(const std::string& name) {
  return ReadPicture(QStringLiteral(":/pictures/") + QString::fromStdString(name));
}

}  // namespace toolkit
