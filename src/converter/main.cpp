// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <algorithm>

#include "converter/conversion.h"
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

bool ConvertAll(const Options& options) {
  if (options.into.empty()) return Convert(options.files.front(), options.files.back(), options);
  bool whole = true;
  for (const std::string& source : options.files)
    whole &= Convert(source, TargetInFolder(source, options), options);
  return whole;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("kalvon-convert"));
  QCoreApplication::setApplicationVersion(QStringLiteral(KALVON_VERSION));
  const auto options = OptionsOf({argv, argv + argc});
  if (!options) return failed;
  if (options->check) return CheckAll(*options);
  return ConvertAll(*options) ? done : failed;
}
