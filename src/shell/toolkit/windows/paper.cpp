// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/paper.h"

#include <QApplication>
#include <QLibrary>

#include "files/run_time_error.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/paper_p.h"

namespace toolkit {

namespace {

/// Beside the program, or where an installed one has its libraries.
QFunctionPointer PrintFunction() {
  const QString folder = QApplication::applicationDirPath();
  for (const QString& place : {folder, folder + QStringLiteral("/../lib/kalvon")}) {
    QLibrary library(place + QStringLiteral("/kalvon-paper"));
    if (const QFunctionPointer found = library.resolve("KalvonPrint")) return found;
  }
  throw files::RuntimeError(files::error::file_not_found);
}

}  // namespace

void Print(const std::string& title, const PagesFor& pages) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the host does not know its type.
  const auto print = reinterpret_cast<decltype(&KalvonPrint)>(PrintFunction());
  print(QApplication::activeWindow(), title, pages);
  if (Ended()) throw ProgramEnd{};
}

}  // namespace toolkit
