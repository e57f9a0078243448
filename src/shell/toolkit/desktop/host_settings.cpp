// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/host_settings.h"

#include <QSettings>
#include <QStandardPaths>

namespace toolkit {

namespace {

QString SettingsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/kalvon/kalvon.conf");
}

QVariant Read(const std::string& name) {
  return QSettings(SettingsFile(), QSettings::IniFormat).value(QString::fromStdString(name));
}

void Write(const std::string& name, const QVariant& value) {
  QSettings(SettingsFile(), QSettings::IniFormat).setValue(QString::fromStdString(name), value);
}

}  // namespace

int GetSetting(const std::string& name, int otherwise) {
  bool is_number = false;
  const int value = Read(name).toInt(&is_number);
  return is_number ? value : otherwise;
}

std::string GetSetting(const std::string& name, const std::string& otherwise) {
  const QVariant value = Read(name);
  return value.isValid() ? value.toString().toStdString() : otherwise;
}

void SaveSetting(const std::string& name, int value) { Write(name, value); }

void SaveSetting(const std::string& name, const std::string& value) {
  Write(name, QString::fromStdString(value));
}

}  // namespace toolkit
