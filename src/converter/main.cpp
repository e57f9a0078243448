// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include "converter/conversion.h"
#include "converter/options.h"

using namespace kalvon::converter;

namespace {

constexpr int done = 0;
constexpr int failed = 2;

bool Run(const Options& options) {
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
  return options && Run(*options) ? done : failed;
}
