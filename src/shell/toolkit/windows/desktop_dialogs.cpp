// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/desktop_dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <future>
#include <thread>
#include <utility>

#include "shell/toolkit/events/program_end.h"

namespace toolkit {

namespace {

using namespace std::chrono_literals;

/// A work of this length is not felt, so that nothing has to happen beside it.
constexpr auto unfelt = 100ms;
constexpr int shown_after = 400;  // Milliseconds, beyond those.
constexpr int between_looks = 20;

QString FilterOf(const FileKind& kind) {
  QStringList patterns;
  for (const std::string& ending : kind.endings)
    patterns << QStringLiteral("*.") + QString::fromStdString(ending);
  return QString::fromStdString(kind.name) + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

/// The file that is chosen, whose name gets the first ending of the kind if it has none.
std::string Chosen(const FileChoice& choice, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(choice.title));
  QStringList filters;
  for (const FileKind& kind : choice.kinds) filters << FilterOf(kind);
  dialog.setNameFilters(filters);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                     : QFileDialog::AnyFile);
  const QFileInfo start(QString::fromStdString(choice.path));
  dialog.setDirectory(start.isDir() ? start.filePath() : start.path());
  if (!start.isDir()) dialog.selectFile(start.fileName());
  const auto take_ending = [&](const QString& filter) {
    const qsizetype place = filters.indexOf(filter);
    if (place >= 0)
      dialog.setDefaultSuffix(
          QString::fromStdString(choice.kinds[static_cast<std::size_t>(place)].endings.front()));
  };
  take_ending(filters.front());
  QObject::connect(&dialog, &QFileDialog::filterSelected, take_ending);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  if (Ended()) throw ProgramEnd{};
  const QStringList files = dialog.selectedFiles();
  return accepted && !files.isEmpty() ? files.front().toStdString() : "";
}

}  // namespace

std::string FileToOpen(const FileChoice& choice) { return Chosen(choice, QFileDialog::AcceptOpen); }

std::string FileToWrite(const FileChoice& choice) {
  return Chosen(choice, QFileDialog::AcceptSave);
}

void ShowLines(const std::string& title, const std::vector<std::string>& lines) {
  QDialog window(QApplication::activeWindow());
  window.setObjectName(QStringLiteral("lines"));
  window.setWindowTitle(QString::fromStdString(title));
  window.resize(600, 320);
  auto* text = new QPlainTextEdit;
  text->setReadOnly(true);
  for (const std::string& line : lines) text->appendPlainText(QString::fromStdString(line));
  text->moveCursor(QTextCursor::Start);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
  auto* column = new QVBoxLayout(&window);
  column->addWidget(text);
  column->addWidget(buttons);
  window.exec();
  if (Ended()) throw ProgramEnd{};
}

bool WorkAside(const Patience& patience, const std::function<void()>& work) {
  std::packaged_task<void()> task(work);
  std::future<void> result = task.get_future();
  std::thread(std::move(task)).detach();
  const auto is_done = [&] { return result.wait_for(0s) == std::future_status::ready; };
  if (result.wait_for(unfelt) != std::future_status::ready) {
    QProgressDialog progress(QString::fromStdString(patience.text),
                             QString::fromStdString(patience.stop), 0, 0,
                             QApplication::activeWindow());
    progress.setWindowModality(Qt::ApplicationModal);
    QTimer::singleShot(shown_after, &progress, [&] { progress.show(); });
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &progress, [&] {
      if (is_done()) progress.accept();
    });
    looks.start(between_looks);
    QEventLoop loop;
    QObject::connect(&progress, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(&progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    loop.exec();
    if (Ended()) throw ProgramEnd{};
    if (!is_done()) return false;
  }
  result.get();
  return true;
}

}  // namespace toolkit
