// SPDX-License-Identifier: MIT
#include "exchange/crossword_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "exchange/format.h"
#include "exchange/qvm.h"
#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace kalvon::exchange {
namespace {

[[noreturn]] void FailAt(Matter matter, const QFileDevice& file) {
  throw ConversionError(matter, file.errorString().toStdString());
}

/// Why a crossword of this program could not be read.
Matter MatterOf(int error) {
  return error == files::error::overflow ? Matter::too_many_cells : Matter::not_whole;
}

}  // namespace

std::string BytesOf(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!QFileInfo(file).isFile() && QFileInfo::exists(file.fileName()))
    throw ConversionError(Matter::unknown_format);
  if (!file.open(QIODevice::ReadOnly)) FailAt(Matter::unreadable, file);
  if (file.size() > static_cast<qint64>(largest_file)) throw ConversionError(Matter::too_long);
  const QByteArray bytes = file.read(static_cast<qint64>(largest_file) + 1);
  if (file.error() != QFileDevice::NoError) FailAt(Matter::unreadable, file);
  return bytes.toStdString();
}

HeadedCrossword ReadCrosswordFile(const std::string& path, const Storing& storing,
                                  Remarks& remarks) {
  if (!IsQvm(path)) return ReadCrosswordBytes(BytesOf(path), storing, remarks);
  BytesOf(path);  // Tells better why a file cannot be read.
  try {
    const QString whole = QFileInfo(QString::fromStdString(path)).absoluteFilePath();
    return ReadQvm(files::LogicPath(whole.toStdString()), storing.language);
  } catch (const files::RuntimeError& error) {
    throw ConversionError(MatterOf(error.number()));
  }
}

HeadedCrossword ReadCrosswordBytes(const std::string& bytes, const Storing& storing,
                                   Remarks& remarks) {
  if (bytes.size() > largest_file) throw ConversionError(Matter::too_long);
  const Format* const format = FormatOfContent(bytes);
  if (format == nullptr) throw ConversionError(Matter::unknown_format);
  return Store(format->read(bytes, remarks), storing, remarks);
}

void WriteBytes(const std::string& path, const std::string& bytes) {
  QSaveFile file(QString::fromStdString(path));
  const auto size = static_cast<qint64>(bytes.size());
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size || !file.commit())
    FailAt(Matter::unwritable, file);
}

std::string EndingOf(const std::string& path) {
  return QFileInfo(QString::fromStdString(path)).suffix().toLower().toStdString();
}

}  // namespace kalvon::exchange
