// SPDX-License-Identifier: MIT
#include "shell/toolkit/browser_host.h"

#include <gio/gio.h>

#include <QProcess>
#include <QRegularExpression>
#include <QUrl>
#include <utility>

#include "shell/toolkit/host_paths.h"
#include "shell/toolkit/run_time_error.h"

namespace toolkit {

namespace {

constexpr std::uint32_t plain_string = 1;
constexpr QLatin1String link_topic_name("WWW_OpenURL");

struct Unreference {
  void operator()(gpointer object) const { g_object_unref(object); }
};
using Browser = std::unique_ptr<GAppInfo, Unreference>;

/// The application that the desktop opens web pages with; none if it is not installed.
Browser DefaultBrowser() { return Browser(g_app_info_get_default_for_uri_scheme("http")); }

/// The command line of its desktop entry, without the places of the files to open.
QString CommandLine(GAppInfo* browser) {
  static const QRegularExpression field_code(QStringLiteral(R"(\s*%[a-zA-Z])"));
  return QString::fromUtf8(g_app_info_get_commandline(browser)).remove(field_code);
}

/// The name of its desktop entry.
QString Service(GAppInfo* browser) {
  QString name = QString::fromUtf8(g_app_info_get_id(browser));
  if (name.endsWith(QStringLiteral(".desktop"))) name.chop(8);
  return name;
}

/// The address of a page: a path of the logic becomes a `file:` address, others stay.
QByteArray PageAddress(const std::string& address) {
  const bool is_path = address.size() > 2 && address.compare(1, 2, ":\\") == 0;
  const QUrl url = is_path ? QUrl::fromLocalFile(QFile::decodeName(HostPath(address).c_str()))
                           : QUrl(QString::fromStdString(address));
  return url.toEncoded();
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
      throw RuntimeError(error::no_application_answered);
  }

  void Request(const std::string& link_item) override {
    // The address stands before two empty fields of the item; it may hold commas itself.
    QByteArray address = PageAddress(link_item.substr(0, link_item.rfind(",,")));
    GList addresses{address.data(), nullptr, nullptr};
    if (!browser_ || !g_app_info_launch_uris(browser_.get(), &addresses, nullptr, nullptr))
      throw RuntimeError(error::link_refused);
  }

  void Start(const std::string& command_line) override {
    QStringList words = QProcess::splitCommand(QString::fromStdString(command_line));
    if (words.isEmpty()) throw RuntimeError(error::file_not_found);
    const QString program = words.takeFirst();
    if (!QProcess::startDetached(program, words)) throw RuntimeError(error::file_not_found);
  }

 private:
  Browser browser_;
};

std::unique_ptr<BrowserHost> host_in_use;

}  // namespace

BrowserHost& CurrentBrowserHost() {
  if (!host_in_use) host_in_use = std::make_unique<DesktopBrowserHost>();
  return *host_in_use;
}

void UseBrowserHost(std::unique_ptr<BrowserHost> host) { host_in_use = std::move(host); }

}  // namespace toolkit
