// SPDX-License-Identifier: MIT
#include "shell/toolkit/desktop/browser_host.h"

#include <gio/gio.h>

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QUrl>
#include <span>
#include <utility>

#include "files/host_paths.h"
#include "files/run_time_error.h"

namespace toolkit {

namespace {

constexpr std::uint32_t plain_string = 1;
constexpr QLatin1String link_topic_name("WWW_OpenURL");

/// The field codes of a desktop entry that stand for what is to be opened.
constexpr QLatin1String files_to_open("uUfF");

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using Browser = std::unique_ptr<GAppInfo, Unreference>;

/// The application that the desktop opens web pages with; none if it is not installed.
Browser DefaultBrowser() { return Browser(g_app_info_get_default_for_uri_scheme("http")); }

QString CommandLine(GAppInfo* browser) {
  return QString::fromUtf8(g_app_info_get_commandline(browser));
}

/// The words of a command line, quoted as desktop entries do it. Nothing is put in for variables or
/// commands. None for a line whose quotes do not close.
QStringList Words(const QString& command_line) {
  gint count = 0;
  gchar** parsed = nullptr;
  if (g_shell_parse_argv(command_line.toUtf8().constData(), &count, &parsed, nullptr) == FALSE)
    return {};
  QStringList words;
  for (const gchar* word : std::span(parsed, static_cast<std::size_t>(count)))
    words << QFile::decodeName(word);
  g_strfreev(parsed);
  return words;
}

/// A word with the address in the place of the files to open. Other field codes are dropped.
QString Filled(const QString& word, const QString& address) {
  static const QRegularExpression field_code(QStringLiteral("%([a-zA-Z%])"));
  QString filled;
  qsizetype end = 0;
  for (const QRegularExpressionMatch& code : field_code.globalMatch(word)) {
    filled += word.mid(end, code.capturedStart() - end);
    const QChar letter = code.capturedView(1).front();
    if (files_to_open.contains(letter)) filled += address;
    if (letter == u'%') filled += letter;
    end = code.capturedEnd();
  }
  return filled + word.mid(end);
}

const QProcessEnvironment& RememberedEnvironment() {
  static const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  return environment;
}

/// Starts a program of a desktop entry on an address, or with an empty one on nothing, and does not
/// wait. False if it could not be started.
bool StartProgram(const QString& command_line, const QString& address) {
  QStringList words = Words(command_line);
  for (QString& word : words) word = Filled(word, address);
  words.removeAll(QString());
  if (words.isEmpty()) return false;
  if (!address.isEmpty() && words.filter(address).isEmpty()) words << address;
  QProcess program;
  program.setProcessEnvironment(RememberedEnvironment());
  program.setProgram(words.takeFirst());
  program.setArguments(words);
  return program.startDetached();
}

/// The name of its desktop entry.
QString Service(GAppInfo* browser) {
  QString name = QString::fromUtf8(g_app_info_get_id(browser));
  if (name.endsWith(QStringLiteral(".desktop"))) name.chop(8);
  return name;
}

/// The address of a page: a path of the logic becomes a `file:` address, others stay.
QString PageAddress(const std::string& address) {
  const bool is_path = address.size() > 2 && address.compare(1, 2, ":\\") == 0;
  const QUrl url = is_path
                       ? QUrl::fromLocalFile(QFile::decodeName(files::HostPath(address).c_str()))
                       : QUrl(QString::fromStdString(address));
  return QString::fromLatin1(url.toEncoded());
}

/// A freedesktop system. The browser's desktop entry stands for the values of the registry, and
/// every browser that is installed answers.
class DesktopBrowserHost : public BrowserHost {
 public:
  std::optional<RegistryValue> Read(const std::string& key_path) override {
    const Browser browser = DefaultBrowser();
    if (!browser) return std::nullopt;
    const std::pair<const char*, QString> values[] = {
        {R"(http\shell\open\command)", CommandLine(browser.get())},
        {R"(http\shell\open\ddeexec\Application)", Service(browser.get())},
        {R"(http\shell\open\ddeexec\Topic)", link_topic_name}};
    for (const auto& [key, value] : values)
      if (key_path == key) return RegistryValue{plain_string, value.toStdString()};
    return std::nullopt;
  }

  void Connect(const std::string& link_topic) override {
    browser_ = DefaultBrowser();
    if (!browser_ || QString::fromStdString(link_topic) !=
                         Service(browser_.get()).toUpper() + u'|' + link_topic_name)
      throw files::RuntimeError(files::error::no_application_answered);
  }

  void Request(const std::string& link_item) override {
    // The address stands before two further fields of the item; it may hold commas itself.
    const QString address = PageAddress(link_item.substr(0, link_item.rfind(",,")));
    if (!browser_ || !StartProgram(CommandLine(browser_.get()), address))
      throw files::RuntimeError(files::error::link_refused);
  }

  void Start(const std::string& command_line) override {
    if (!StartProgram(QString::fromStdString(command_line), {}))
      throw files::RuntimeError(files::error::file_not_found);
  }

 private:
  Browser browser_;
};

std::unique_ptr<BrowserHost> host_in_use;

}  // namespace

void RememberEnvironment() { RememberedEnvironment(); }

BrowserHost& CurrentBrowserHost() {
  if (!host_in_use) host_in_use = std::make_unique<DesktopBrowserHost>();
  return *host_in_use;
}

void UseBrowserHost(std::unique_ptr<BrowserHost> host) { host_in_use = std::move(host); }

}  // namespace toolkit
