// SPDX-License-Identifier: MIT
#include "shell/toolkit/drawing/picture.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QtEndian>
#include <cstddef>
#include <cstdlib>
#include <span>
#include <utility>

#include "files/descriptor.h"
#include "files/run_time_error.h"

namespace toolkit {

namespace {

/// What the head of a bitmap file says.
struct BitmapHead {
  qint64 width;
  qint64 height;
  qint64 bits;          ///< Of a pixel.
  bool run_lengths;     ///< Pixels are packed, and a run may skip some.
  qint64 packed_bytes;  ///< That packed pixels take up.
  qint64 bytes_at;      ///< Where the pixels begin.
};

/// A number in the head of a bitmap file, which holds enough bytes for it.
template <typename Integer>
qint64 NumberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<Integer>(bytes.sliced(at).constData());
}

BitmapHead HeadOf(const QByteArray& bytes) {
  const qint64 bytes_at = NumberAt<quint32>(bytes, 10);
  constexpr int oldest = 12;  // The head of OS/2 has small numbers, and pixels that are not packed.
  if (NumberAt<quint32>(bytes, 14) == oldest) {
    return {.width = NumberAt<quint16>(bytes, 18),
            .height = NumberAt<quint16>(bytes, 20),
            .bits = NumberAt<quint16>(bytes, 24),
            .run_lengths = false,
            .packed_bytes = 0,
            .bytes_at = bytes_at};
  }
  const qint64 packing = NumberAt<quint32>(bytes, 30);
  return {.width = NumberAt<qint32>(bytes, 18),
          .height = std::abs(NumberAt<qint32>(bytes, 22)),
          .bits = NumberAt<quint16>(bytes, 28),
          .run_lengths = packing == 1 || packing == 2,
          .packed_bytes = NumberAt<quint32>(bytes, 34),
          .bytes_at = bytes_at};
}

/// Whether the file holds all the pixels of which its head speaks.
bool IsWhole(const BitmapHead& head, qint64 file_size) {
  const auto fits = [](qint64 side) { return side > 0 && side <= largest_side; };
  if (!fits(head.width) || !fits(head.height)) return false;
  const qint64 plain_bytes = (head.width * head.bits + 31) / 32 * 4 * head.height;
  return file_size >= head.bytes_at + (head.run_lengths ? head.packed_bytes : plain_bytes);
}

/// The five or six bits of a shade leave the lowest ones empty, so that white is a little gray.
void SpreadShades(QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    void* row = image.scanLine(y);
    const std::span pixels(static_cast<QRgb*>(row), static_cast<std::size_t>(image.width()));
    for (QRgb& pixel : pixels) pixel |= (pixel >> 5U) & 0x070707U;
  }
}

QImage ReadBitmap(QFile& file) {
  constexpr qsizetype head_size = 38;
  const QByteArray bytes = file.peek(head_size);
  if (bytes.size() < head_size || !bytes.startsWith("BM")) return {};
  const BitmapHead head = HeadOf(bytes);
  if (!IsWhole(head, file.size())) return {};
  QImage image;
  if (head.run_lengths) {
    // The host's decoder writes into an image of this format, and leaves out the skipped pixels.
    image = QImage(static_cast<int>(head.width), static_cast<int>(head.height),
                   QImage::Format_Indexed8);
    image.fill(0);
  }
  if (!QImageReader(&file, "bmp").read(&image)) return {};
  image.convertTo(QImage::Format_RGB32);
  if (head.bits == 16) SpreadShades(image);
  return image;
}

std::shared_ptr<const QImage> ReadPicture(QFile& file) {
  auto image = std::make_shared<const QImage>(ReadBitmap(file));
  if (image->isNull()) throw files::RuntimeError(files::error::invalid_picture);
  return image;
}

}  // namespace

Picture LoadPicture(const std::string& path) {
  if (path.empty()) return {};
  QFile file;
  if (!file.open(files::OpenForReading(path), QFile::ReadOnly, QFile::AutoCloseHandle))
    throw files::RuntimeError(files::error::path_file_access);
  return Picture(ReadPicture(file));
}

Picture BuiltInPicture(const std::string& name) {
  const QString path = QStringLiteral(":/pictures/") + QString::fromStdString(name);
  QFile file(path);
  if (!file.open(QFile::ReadOnly)) throw files::RuntimeError(files::error::file_not_found);
  auto image = ReadPicture(file);
  QImage dense(path.chopped(4) + QStringLiteral("@3x.png"));
  if (dense.isNull()) return Picture(std::move(image));
  return Picture(std::move(image), std::make_shared<const QImage>(std::move(dense)));
}

}  // namespace toolkit
