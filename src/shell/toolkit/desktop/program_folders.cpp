// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/program_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace toolkit {

namespace {

/// What a settings file takes, with room to spare. Bytes.
constexpr qsizetype room_wanted = 4096;

std::string Spoken(const QString& folder) {
  return files::LogicPath(QFile::encodeName(folder).toStdString());
}

/// A user without a home has no folders: the host would name some in the root of the disk.
QString UserFolder(QStandardPaths::StandardLocation location, const QString& name) {
  if (qEnvironmentVariableIsEmpty("HOME")) return {};
  return QStandardPaths::writableLocation(location) + u'/' + name;
}

/// Why nothing can be kept in the folder, which is made if it is missing; 0 if it can.
int FailureIn(const QString& folder) {
  if (folder.isEmpty() || !QDir().mkpath(folder)) return files::error::path_not_found;
  QTemporaryFile trial(folder + QStringLiteral("/.kalvon-XXXXXX"));
  if (!trial.open()) return files::error::permission_denied;
  const bool fits = trial.write(QByteArray(room_wanted, ' ')) == room_wanted && trial.flush();
  return fits ? 0 : files::error::disk_full;
}

/// A folder that goes when the program goes, with a copy of the settings, if there are any.
QString PassingFolder(const QString& data) {
  static const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/kalvon-XXXXXX"));
  if (!folder.isValid()) return QDir::rootPath();
  for (const QString& name : QDir(data).entryList({QStringLiteral("*_ini.txt")}, QDir::Files))
    QFile::copy(data + u'/' + name, folder.filePath(name));
  return folder.path();
}

}  // namespace

ProgramFolders FindProgramFolders(const std::string& program) {
  const QFileInfo folder(QString::fromStdString(program));
  const QDir share(folder.dir().filePath(QStringLiteral("share/kalvon")));
  const bool installed = folder.fileName() == u"bin" && share.exists();
  ProgramFolders found;
  found.shipped = Spoken(installed ? share.path() : folder.filePath());
  found.own = found.shipped;
  if (installed || !folder.isWritable()) {
    const QString data = UserFolder(QStandardPaths::GenericDataLocation, QStringLiteral("kalvon"));
    found.error = FailureIn(data);
    found.own = Spoken(found.error == 0 ? data : PassingFolder(data));
  }
  if (installed) {
    const std::string crosswords = CrosswordFolder();
    found.crosswords = crosswords.empty() ? found.shipped + "\\primeri" : crosswords;
  }
  return found;
}

std::string CrosswordFolder() {
  const QString folder =
      UserFolder(QStandardPaths::DocumentsLocation, QStringLiteral("Ukrstenice"));
  return !folder.isEmpty() && QDir().mkpath(folder) ? Spoken(folder) : "";
}

}  // namespace toolkit
