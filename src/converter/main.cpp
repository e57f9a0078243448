// SPDX-License-Identifier: MIT
#include <QGuiApplication>
#include <algorithm>
#include <memory>
#include <span>

#include "converter/conversion.h"
#include "converter/endings.h"
#include "converter/options.h"
#include "exchange/check.h"

using namespace kalvon::converter;

namespace {

constexpr int done = 0;
constexpr int remarked = 1;
constexpr int failed = 2;

int CheckAll(const Options& options) {
  int worst = done;
  for (const std::string& file : options.files) {
    kalvon::exchange::Remarks remarks;
    kalvon::exchange::Check(file, remarks);
    for (const kalvon::exchange::Remark& remark : remarks.List()) {
      worst = std::max(worst, IsError(remark.matter) ? failed : remarked);
      Tell(file, remark);
    }
  }
  return worst;
}

/// Pictures need fonts, which need an application with a screen; one that nobody sees will do. It
/// takes time to start, so that nothing else gets it.
std::unique_ptr<QCoreApplication> ApplicationFor(const Options& options, int& argc, char** argv) {
  if (!IsPictureEnding(TargetEnding(options.files.back(), options)))
    return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // What it says of a desktop that is not there would be taken for a remark.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return std::make_unique<QGuiApplication>(argc, argv);
}

bool ConvertAll(const Options& options) {
  if (options.into.empty()) return Convert(options.files.front(), options.files.back(), options);
  bool whole = true;
  for (const std::string& source : options.files)
    whole &= Convert(source, TargetInFolder(source, options), options);
  return whole;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(QStringLiteral("kalvon-convert"));
  QCoreApplication::setApplicationVersion(QStringLiteral(KALVON_VERSION));
  const std::span words(argv, static_cast<std::size_t>(argc));
  const auto options = OptionsOf({words.begin(), words.end()});
  if (!options) return failed;
  const auto application = ApplicationFor(*options, argc, argv);
  if (options->check) return CheckAll(*options);
  return ConvertAll(*options) ? done : failed;
}
